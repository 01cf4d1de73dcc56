#include "callout/core/callout.h"

QVector<shapekit::Kind> shapekit::pluginKinds()
{
    Kind kind =
        kindOf<callout::Callout>(QStringLiteral(SHAPEKIT_NAME), inEnglishAndGerman("Callout", "Sprechblase"));
    kind.rank = 5;
    return {kind};
}
