// Numbers of path data, for concrete shapes that keep their geometry as text.

#include <svgobj/csvgbase.h>

#include "shape/numbertext.h"

QVector<double> CSVGBase::parseNumbersList(const QChar *&str)
{
    return NumberText::parse(str);
}

QString CSVGBase::numbersToString(QVector<double> numbers)
{
    return NumberText::write(numbers);
}
