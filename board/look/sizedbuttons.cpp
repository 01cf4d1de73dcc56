#include "look/sizedbuttons.h"

#include "look/sizes.h"

#include <QtWidgets/QAbstractButton>

namespace board {

void sizeAsBarButton(QAbstractButton *button)
{
    followSizes(button, [button] {
        button->setIconSize({sizes().barIcon, sizes().barIcon});
        button->setFixedSize(sizes().barButton, sizes().barButton);
    });
}

void sizeAsStyleButton(QAbstractButton *button)
{
    followSizes(button, [button] {
        button->setIconSize({sizes().barIcon, sizes().barIcon});
        button->setFixedSize(sizes().styleButton, sizes().styleButton);
    });
}

void sizeAsTextButton(QAbstractButton *button)
{
    followSizes(button, [button] {
        button->setIconSize({sizes().barIcon, sizes().barIcon});
        button->setFixedHeight(sizes().barButton);
        button->setMinimumWidth(sizes().barButton);
    });
}

} // namespace board
