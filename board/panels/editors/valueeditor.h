#pragma once

#include <QtCore/QVariant>
#include <QtWidgets/QWidget>

namespace board {

/// Shows and changes one value, which several objects may have differently.
class ValueEditor : public QWidget
{
    Q_OBJECT

public:
    using QWidget::QWidget;

    /// Shows a value without telling anybody. Left alone while the user is in the middle of choosing.
    virtual void showValue(const QVariant &value) = 0;
    /// Shows that the objects have different values.
    virtual void showMixed() = 0;
    /// Says what is wrong with the value; empty for nothing.
    virtual void showNote(const QString &note) { Q_UNUSED(note) }
    /// Whether a caption is needed to say what is edited.
    virtual bool hasCaption() const { return true; }
    /// Sets the name of the value for screen readers and tool tips.
    virtual void setName(const QString &name) = 0;

Q_SIGNALS:
    /// The user is still choosing: a look at what this value would be.
    void previewed(const QVariant &value);
    /// The user ends choosing without a change.
    void abandoned();
    /// The user has chosen.
    void picked(const QVariant &value);
};

} // namespace board
