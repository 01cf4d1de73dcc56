#pragma once

#include <shapekit/kind.h>
#include <shapekit/shapekit_global.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

namespace shapekit {

class ShapeObject;

/// A plug-in of shapes. gliololok_add_shape() compiles a class derived from it into each plug-in.
class SHAPEKIT_EXPORT ShapePlugin : public QObject, public pagehost::ObjectPlugin, public pagehost::MessageSource
{
    Q_OBJECT
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    /// Offers these kinds.
    explicit ShapePlugin(const QVector<Kind> &kinds);
    ~ShapePlugin() override;

    QVector<pagehost::ObjectKind> objectKinds() const override;
    CBaseObject *createObject(const QString &kindId) const override;
    pagehost::TextTable texts(const QString &language) const override;
    QStringList dataTypes() const override;
    CBaseObject *createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const override;
    /// SVG alone.
    QByteArray dataOf(CBaseObject *object, const QString &mimeType) const override;
    QVector<pagehost::PluginMessage> messages() const override;
    void setMessageListener(const pagehost::MessageListener &listener) override;

protected:
    /// By its index among the kinds, from 0.
    const Kind &kind(int index) const { return m_kinds.at(index); }
    /// Texts of the first kind besides those of its properties, such as the titles of undo steps.
    virtual QVector<const Text *> furtherTexts() const { return {}; }

private:
    /// Makes and draws an object of each kind: its properties have the texts, and its template may have faults.
    void lookAtKinds() const;
    void addTexts(const QVector<const Text *> &texts, const Kind &kind) const;
    void addTexts(const Words &words, const QString &key) const;

    const QVector<Kind> m_kinds;
    mutable bool m_lookedAt = false;
    mutable QMap<QString, pagehost::TextTable> m_texts; ///< by language
};

} // namespace shapekit
