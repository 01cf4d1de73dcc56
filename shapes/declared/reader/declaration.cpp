#include <declared/reader/declaration.h>

namespace declared {

const PointDeclaration &Declaration::point(int number) const
{
    static const PointDeclaration withoutRules;
    return number >= 1 && number <= points.size() ? points.at(number - 1) : withoutRules;
}

} // namespace declared
