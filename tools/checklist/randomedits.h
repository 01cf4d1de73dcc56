#pragma once

#include <QtCore/QJsonObject>
#include <QtCore/QString>

#include <random>

namespace checklist {

class ShapeDriver;

/// Edits a shape at random as a user could: drags of control points, pen, fill, and answers of the settings panel,
/// each recorded and one undo step. The object must be finished and selected.
class RandomEdits
{
public:
    RandomEdits(const ShapeDriver &shape, unsigned startValue);

    /// Answers no control of that section of the settings panel from now on.
    void leaveOut(const QString &section) { m_leftOut = section; }
    void edit();
    void edit(int count);
    /// An answer to a control of the settings panel that differs from what it shows, as far as it can.
    QString answerTo(const QJsonObject &control);

private:
    void dragAnyControlPoint();
    /// False when the shape does not offer it.
    bool setAnyStyle();
    void answerAnyControl();
    int upTo(int highest);
    double between(double low, double high);
    QColor anyColor();

    const ShapeDriver &m_shape;
    std::mt19937 m_random;
    QString m_leftOut;
};

} // namespace checklist
