#pragma once

#include <QtCore/QString>

#include <functional>

class CSVGBase;
class CSVGObj;

namespace shapekit {

/// Makes a shape core for a page object.
using CoreFactory = std::function<CSVGBase *(CSVGObj *owner)>;

/// The groups of the palette; None for kinds that only tools make.
enum class Group { Basic, Mathematics, Science, None };

/// Description of the one shape of a plug-in.
struct Kind
{
    QString name; ///< the shape's folder: part of its id, its keys and its resource paths
    QString english;
    QString german;
    Group group = Group::Basic;
    CoreFactory makeCore = nullptr;
    bool takesPictures = false; ///< whether dropped or pasted pictures become objects of this kind
    QString idPrefix = QStringLiteral("shapes.");
    QString keyPrefix = QStringLiteral("IDS_SHAPE_");

    QString id() const { return idPrefix + name; }
    QString nameKey() const { return keyPrefix + name.toUpper(); }
    QString textKey(const QString &text) const { return nameKey() + QLatin1Char('_') + text; }
    QString templateFile() const { return QStringLiteral(":/gliololok/%1/template.svg").arg(name); }
};

/// The kind of this plug-in, defined by SHAPEKIT_PLUGIN.
const Kind &kind();

template<class Core> CSVGBase *makeCore(CSVGObj *owner)
{
    return new Core(owner);
}

} // namespace shapekit

/// Defines the plug-in of a shape core: the class, its name in English and German (UTF-8), and its group in the
/// palette.
#define SHAPEKIT_PLUGIN(Core, english, german, group)                                                              \
    const shapekit::Kind &shapekit::kind()                                                                         \
    {                                                                                                              \
        static const Kind kind{QStringLiteral(SHAPEKIT_NAME),                                                      \
                               QString::fromUtf8(english),                                                         \
                               QString::fromUtf8(german),                                                          \
                               Group::group,                                                                       \
                               &makeCore<Core>,                                                                    \
                               Core::takesPictures,                                                                \
                               QStringLiteral("shapes."),                                                          \
                               QStringLiteral("IDS_SHAPE_")};                                                      \
        return kind;                                                                                               \
    }
