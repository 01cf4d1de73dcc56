// The settings panel of a shape: not described yet.

#include <svgobj/csvgbase.h>

bool CSVGBase::GetSettingJson(QString &)
{
    return false;
}

bool CSVGBase::SetSettingJson(const QString &, bool, bool)
{
    return false;
}
