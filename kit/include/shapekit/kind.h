#pragma once

#include <shapekit/messagelog.h>
#include <shapekit/shapekit_global.h>
#include <shapekit/text.h>

#include <QtCore/QString>
#include <QtCore/QVector>

#include <functional>
#include <memory>

class CSVGObj;

namespace shapekit {

class StyledShape;

/// Makes a shape core for a page object.
using CoreFactory = std::function<StyledShape *(CSVGObj *owner)>;

/// A group of the palette.
struct SHAPEKIT_EXPORT Group
{
    /// The groups of the shapes that come with the library.
    enum Known {
        Basic,
        Mathematics,
        Science,
        None ///< for kinds that only tools make
    };

    /// One of the known groups.
    Group(Known known = Basic);
    /// A group of its own; groups of the same key are one.
    Group(const QString &key, const Words &title);

    QString key; ///< localisation key; empty for kinds that palettes leave out
    Words title; ///< name by language
};

/// Description of a shape that a plug-in offers.
struct SHAPEKIT_EXPORT Kind
{
    QString name;                   ///< letters and digits; part of its id, its keys and its resource path
    Words title;                    ///< name by language
    Group group;                    ///< where palettes offer it
    int rank = 0;                   ///< place in the group by use, beginning with 1; 0 for after those, by name
    CoreFactory makeCore = nullptr; ///< must be set
    bool takesPictures = false;     ///< whether dropped or pasted pictures become objects of this kind
    QString idPrefix = QStringLiteral("shapes.");     ///< what its id begins with
    QString keyPrefix = QStringLiteral("IDS_SHAPE_"); ///< what the keys of its texts begin with
    QString templateText;                             ///< SVG
    /// Faults of the template and of its use.
    std::shared_ptr<MessageLog> log = std::make_shared<MessageLog>();

    /// The id of the page object's kind, saved in documents.
    QString id() const { return idPrefix + name; }
    /// Localisation key of the name.
    QString nameKey() const { return keyPrefix + name.toUpper(); }
    /// Localisation key of one of its texts.
    QString textKey(const QString &text) const { return nameKey() + QLatin1Char('_') + text; }
    /// The name of the template in messages.
    QString templateName() const { return name + QStringLiteral("/template.svg"); }
    /// Reads the text from the resource ":/gliololok/NAME/template.svg", where gliololok_add_shape() puts it.
    void readTemplate();
};

/// The kinds of a plug-in, in palette order; defined by the plug-in's source file or by SHAPEKIT_PLUGIN.
QVector<Kind> pluginKinds();

/// A new core of that class; the page object owns it.
template<class Core> StyledShape *makeCore(CSVGObj *owner)
{
    return new Core(owner);
}

/// The kind of a core whose template is in the resources.
template<class Core> Kind kindOf(const QString &name, const Words &title, const Group &group = Group::Basic)
{
    Kind kind;
    kind.name = name;
    kind.title = title;
    kind.group = group;
    kind.makeCore = &makeCore<Core>;
    kind.takesPictures = Core::takesPictures;
    kind.readTemplate();
    return kind;
}

} // namespace shapekit

/// Defines a plug-in of one shape, named as its target is: the core, its name in English and German (UTF-8), and
/// its group among Group::Known. Plug-ins of several shapes, languages or groups define shapekit::pluginKinds().
#define SHAPEKIT_PLUGIN(Core, english, german, group)                                                              \
    QVector<shapekit::Kind> shapekit::pluginKinds()                                                                \
    {                                                                                                              \
        return {shapekit::kindOf<Core>(QStringLiteral(SHAPEKIT_NAME),                                              \
                                       shapekit::inEnglishAndGerman(english, german), shapekit::Group::group)};    \
    }
