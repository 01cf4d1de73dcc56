#pragma once

#include <QtWidgets/QWidget>

namespace board {

/// Says to screen readers what is seen without words. It takes no place, but lies in the window that has the focus:
/// readers pass over what is hidden or elsewhere.
class Voice : public QWidget
{
    Q_OBJECT

public:
    explicit Voice(QWidget *window);

    void say(const QString &words);
};

} // namespace board
