// Numbers and lists of them: writing and rereading gives the same numbers.

#include "grammarinput.h"

#include "grammar/angles.h"
#include "grammar/numbers.h"

#include <QtCore/QtMath>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const std::optional<double> number = Svg::parseNumber(text);
    if (number) {
        require(qIsFinite(*number), "a number is finite");
        require(Svg::parseNumber(Svg::numberText(*number)) == number, "a written number reads back");
    }
    const std::optional<QVector<double>> list = Svg::parseNumberList(text);
    if (number)
        require(list && list->size() == 1 && list->first() == *number, "a number is a list of one");
    Svg::parseAngle(text);
    return 0;
}
