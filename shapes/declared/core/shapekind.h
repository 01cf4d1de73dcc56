#pragma once

#include <declared/core/labeltitles.h>
#include <declared/core/letterstyle.h>
#include <declared/reader/declaration.h>
#include <declared/reader/message.h>

#include <shapekit/kind.h>
#include <shapekit/text.h>

#include <functional>
#include <memory>
#include <vector>

namespace declared {

/// A shape that a file declares, as plug-in and panels know it.
class ShapeKind
{
public:
    explicit ShapeKind(const SharedDeclaration &declaration);
    ShapeKind(const ShapeKind &) = delete;

    const Declaration &declaration() const { return *m_declaration; }
    const shapekit::Kind &kind() const { return m_kind; }
    QString groupKey() const;
    /// The title of a property, and those of the entries of a choice, by index.
    const shapekit::Text &title(int property) const { return *m_titles.at(size_t(property)); }
    QVector<const shapekit::Text *> entries(int property) const;
    const std::vector<LabelTitles> &labelTitles() const { return m_labelTitles; }
    /// Of the look that repeated labels have together.
    const LetterTitles &letterTitles() const { return m_letterTitles; }
    /// In a language, else in English where that is wanted.
    QMap<QString, QString> texts(const QString &language) const;
    /// Something that is wrong with a drawing of the shape, as values of the user have made it. The listener gets
    /// the same message once.
    void tell(const Message &message) const;
    const QVector<Message> &told() const { return m_told; }
    void setListener(const std::function<void(const Message &)> &listener) { m_listener = listener; }
    /// Of the text with the words that a search finds the shape by, besides its name.
    QString wordsKey() const { return m_kind.nameKey() + QStringLiteral("_WORDS"); }

private:
    QString propertyName(int property) const;
    QString propertyKey(int property) const;
    QString entryKey(int property, int entry) const;
    LabelTitles makeLabelTitles(const LabelDeclaration &label) const;
    LetterTitles makeLetterTitles() const;
    void addLetterTexts(QMap<QString, QString> &table, const QString &language) const;
    void addLabelTexts(QMap<QString, QString> &table, int label, const QString &language) const;

    SharedDeclaration m_declaration;
    mutable QVector<Message> m_told;
    std::function<void(const Message &)> m_listener;
    shapekit::Kind m_kind;
    std::vector<std::unique_ptr<shapekit::Text>> m_titles;
    std::vector<std::vector<std::unique_ptr<shapekit::Text>>> m_entries; ///< by property
    std::vector<LabelTitles> m_labelTitles;
    LetterTitles m_letterTitles;
};

} // namespace declared
