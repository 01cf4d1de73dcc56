#pragma once

#include <pagehost/objectplugin.h>

#include <framework/framework_global.h>
#include <framework/ilocalize.h>

#include <QtCore/QMap>
#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtWidgets/QStyledItemDelegate>

namespace pagehost {

/// Texts by key in several languages. Contains the texts of the library and of this host in English and German;
/// applications and plug-ins add theirs.
class FRAMEWORK_EXPORT Localizer : public ILocalize
{
public:
    /// Initially English.
    Localizer();

    /// The text in the current language, or else in English. A key without a text gives the words of the key
    /// without its prefix, since users must never see a raw key; other text is returned unchanged.
    QString text(const QString &key) const override;
    /// Whether the table of exactly this language has the key.
    bool hasText(const QString &language, const QString &key) const;

    /// A language code such as "en" or "de_AT"; without a table for it, the part before "_" is used, and English
    /// without that, too.
    void setLanguage(const QString &language);
    /// As set, whether there is a table of it or not.
    QString language() const { return m_language; }
    /// Codes in alphabetical order.
    QStringList languages() const { return m_tables.keys(); }
    /// Later texts replace earlier ones of the same key.
    void addTexts(const QString &language, const TextTable &texts);

private:
    QMap<QString, TextTable> m_tables; ///< by language
    QString m_language;
};

/// Shows the localisation keys of a list in the user's language: for QUndoView, whose rows are commands' texts.
class FRAMEWORK_EXPORT LocalizedDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    /// The localizer must outlive the delegate.
    explicit LocalizedDelegate(const ILocalize *localizer, QObject *parent = nullptr);
    /// The text of a key.
    QString displayText(const QVariant &value, const QLocale &locale) const override;

private:
    const ILocalize *m_localizer;
};

} // namespace pagehost
