// The state of a shape as members of a JSON object: not written yet.

#include <svgobj/csvgbase.h>

bool CSVGBase::saveJson(QJsonObject &)
{
    return false;
}

bool CSVGBase::loadJson(QJsonObject &)
{
    return false;
}
