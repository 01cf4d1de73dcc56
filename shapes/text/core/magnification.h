#pragma once

#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace text {

/// Sizes that an object takes when its drawing gets another size, so that the drawing stays as large as it looks.
/// A drawing that comes back, by undo for one, gets the very size that it had: what has been asked is remembered,
/// since a product of a quotient is a rounding error away from it.
class Magnification
{
public:
    /// For an object of `size` with a drawing of the size `before`, which becomes `after`. None of them is empty.
    QSizeF sizeFor(const QSizeF &after, const QSizeF &before, const QSizeF &size);

private:
    struct Fit
    {
        QSizeF drawing;
        QSizeF size;
        double factor; ///< by width
    };

    double factorOf(const QSizeF &drawing, const QSizeF &size);
    void remember(const Fit &fit);

    QVector<Fit> m_fits; ///< the latest at the end
};

} // namespace text
