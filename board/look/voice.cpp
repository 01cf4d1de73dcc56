#include "look/voice.h"

#include "look/accessiblerole.h"

namespace board {

Voice::Voice(QWidget *window)
    : QWidget(window)
{
    setAccessibleRole(this, QAccessible::AlertMessage);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setGeometry(0, 0, 1, 1);
}

void Voice::say(const QString &words)
{
    announce(this, words);
}

} // namespace board
