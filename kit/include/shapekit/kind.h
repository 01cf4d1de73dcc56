#pragma once

#include <QtCore/QString>

class CSVGBase;
class CSVGObj;

namespace shapekit {

/// Makes a shape core for a page object.
using CoreFactory = CSVGBase *(*)(CSVGObj *owner);

/// The groups of the palette.
enum class Group { Basic, Mathematics, Science };

/// What there is to say about the one shape of a plug-in.
struct Kind
{
    QString name; ///< of the shape's folder: part of its id, of its keys and of its resources
    QString english;
    QString german;
    Group group = Group::Basic;
    CoreFactory makeCore = nullptr;
    bool takesPictures = false; ///< whether pictures from elsewhere become objects of this kind

    QString id() const { return QStringLiteral("shapes.") + name; }
    QString nameKey() const { return QStringLiteral("IDS_SHAPE_") + name.toUpper(); }
    QString textKey(const QString &text) const { return nameKey() + QLatin1Char('_') + text; }
    QString templateFile() const { return QStringLiteral(":/gliololok/%1/template.svg").arg(name); }
};

/// The kind of this plug-in, which SHAPEKIT_PLUGIN defines.
const Kind &kind();

template<class Core> CSVGBase *makeCore(CSVGObj *owner)
{
    return new Core(owner);
}

} // namespace shapekit

/// Makes a plug-in of a shape core: the class, its name in English and German (UTF-8), and its place in the
/// palette.
#define SHAPEKIT_PLUGIN(Core, english, german, group)                                                              \
    const shapekit::Kind &shapekit::kind()                                                                         \
    {                                                                                                              \
        static const Kind kind{QStringLiteral(SHAPEKIT_NAME),                                                      \
                               QString::fromUtf8(english),                                                         \
                               QString::fromUtf8(german),                                                          \
                               Group::group,                                                                       \
                               &makeCore<Core>,                                                                    \
                               Core::takesPictures};                                                               \
        return kind;                                                                                               \
    }
