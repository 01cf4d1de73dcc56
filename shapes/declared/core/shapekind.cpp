#include <declared/core/shapekind.h>

#include <declared/core/declaredshape.h>

#include <algorithm>

namespace declared {

namespace {

struct KnownGroup
{
    const char *name;
    const char *key;
    const char *english;
    const char *german;
};

constexpr KnownGroup knownGroups[] = {{"basic", "IDS_SHAPEGROUP_BASIC", "Basic shapes", "Grundformen"},
                                      {"mathematics", "IDS_SHAPEGROUP_MATHEMATICS", "Mathematics", "Mathematik"},
                                      {"diagrams", "IDS_SHAPEGROUP_DIAGRAMS", "Diagrams", "Diagramme"},
                                      {"science", "IDS_SHAPEGROUP_SCIENCE", "Science", "Naturwissenschaft"}};

const KnownGroup *knownGroup(const QString &name)
{
    for (const KnownGroup &group : knownGroups)
        if (name == QLatin1String(group.name))
            return &group;
    return nullptr;
}

const QString english = QStringLiteral("en");

void addText(QMap<QString, QString> &table, const QString &key, const Texts &texts, const QString &language)
{
    // A name in no other language than its own stands for the English one, which must be there.
    const bool isEnglish = language == english;
    const QString text = texts.value(language, isEnglish && !texts.isEmpty() ? texts.first() : QString());
    if (!text.isEmpty())
        table.insert(key, text);
}

} // namespace

ShapeKind::ShapeKind(const SharedDeclaration &declaration)
    : m_declaration(declaration)
{
    m_kind.name = declaration->id;
    m_kind.rank = declaration->rank;
    if (!declaration->isSuccessor()) {
        m_kind.idPrefix = QStringLiteral("declared.");
        m_kind.keyPrefix = QStringLiteral("IDS_DECLARED_");
    }
    m_kind.makeCore = [this](CSVGObj *owner) -> shapekit::StyledShape * { return new DeclaredShape(owner, *this); };
    for (const LabelDeclaration &label : declaration->labels)
        m_labelTitles.push_back(makeLabelTitles(label));
    m_letterTitles = makeLetterTitles();
    m_entries.resize(size_t(declaration->properties.size()));
    for (int i = 0; i < declaration->properties.size(); ++i) {
        const PropertyDeclaration &property = declaration->properties.at(i);
        m_titles.push_back(std::make_unique<shapekit::Text>(propertyKey(i), propertyName(i)));
        for (int entry = 0; entry < property.entries.size(); ++entry)
            m_entries[size_t(i)].push_back(
                std::make_unique<shapekit::Text>(entryKey(i, entry), property.entries.at(entry)));
    }
}

LabelTitles ShapeKind::makeLabelTitles(const LabelDeclaration &label) const
{
    const auto title = [&](const char *part) {
        const QString name = label.id + QLatin1String(part);
        return std::make_unique<shapekit::Text>(m_kind.keyPrefix + m_declaration->id + QLatin1Char('_') + name,
                                                QStringLiteral("Declared_") + name);
    };
    return {title(""),       title("_size"),  title("_bold"),   title("_colour"),
            title("_align"), title("_start"), title("_middle"), title("_end")};
}

LetterTitles ShapeKind::makeLetterTitles() const
{
    const auto title = [&](const char *part) {
        // No property has such a name.
        const QString key = m_kind.keyPrefix + m_declaration->id + QLatin1String("_letters-") + QLatin1String(part);
        return std::make_unique<shapekit::Text>(key, QLatin1String(part));
    };
    return {title("size"), title("bold"), title("italic"), title("underlined"), title("colour")};
}

void ShapeKind::addLetterTexts(QMap<QString, QString> &table, const QString &language) const
{
    const bool isGerman = language == QLatin1String("de");
    if (!isGerman && language != english)
        return;
    const auto add = [&](const shapekit::Text &text, const char *inEnglish, const char *inGerman) {
        table.insert(text.key(&m_kind), QString::fromUtf8(isGerman ? inGerman : inEnglish));
    };
    add(*m_letterTitles.size, "Font size", "Schriftgröße");
    add(*m_letterTitles.bold, "Bold", "Fett");
    add(*m_letterTitles.italic, "Italic", "Kursiv");
    add(*m_letterTitles.underlined, "Underlined", "Unterstrichen");
    add(*m_letterTitles.colour, "Text colour", "Textfarbe");
}

/// The properties are named after the label, if it has a name: "Caption", "Caption: bold".
void ShapeKind::addLabelTexts(QMap<QString, QString> &table, int label, const QString &language) const
{
    const bool isGerman = language == QLatin1String("de");
    if (!isGerman && language != english)
        return;
    const Texts &given = m_declaration->labels.at(label).title;
    const QString name = given.value(language, given.value(english));
    const LabelTitles &titles = m_labelTitles.at(size_t(label));
    const auto add = [&](const shapekit::Text &text, const char *inEnglish, const char *inGerman) {
        QString title = QString::fromUtf8(isGerman ? inGerman : inEnglish);
        if (name.isEmpty())
            title[0] = title.at(0).toUpper();
        table.insert(text.key(&m_kind), name.isEmpty() ? title : name + QStringLiteral(": ") + title);
    };
    table.insert(titles.text->key(&m_kind), name.isEmpty() ? QStringLiteral("Text") : name);
    add(*titles.size, "font size", "Schriftgröße");
    add(*titles.bold, "bold", "fett");
    add(*titles.colour, name.isEmpty() ? "text colour" : "colour", name.isEmpty() ? "Textfarbe" : "Farbe");
    add(*titles.alignment, "alignment", "Ausrichtung");
    table.insert(titles.start->key(&m_kind), isGerman ? QStringLiteral("Am Anfang") : QStringLiteral("Start"));
    table.insert(titles.middle->key(&m_kind), isGerman ? QStringLiteral("In der Mitte") : QStringLiteral("Middle"));
    table.insert(titles.end->key(&m_kind), isGerman ? QStringLiteral("Am Ende") : QStringLiteral("End"));
}

void ShapeKind::tell(const Message &message) const
{
    const auto isIt = [&](const Message &known) {
        return known.code == message.code && known.line == message.line && known.column == message.column;
    };
    if (std::any_of(m_told.cbegin(), m_told.cend(), isIt))
        return;
    m_told.append(message);
    if (m_listener)
        m_listener(message);
}

QString ShapeKind::groupKey() const
{
    const KnownGroup *known = knownGroup(m_declaration->group);
    return known ? QString::fromLatin1(known->key) : QStringLiteral("IDS_DECLAREDGROUP_") + m_declaration->group;
}

/// Controls and saved JSON of a successor know its properties by their English titles.
QString ShapeKind::propertyName(int property) const
{
    const PropertyDeclaration &declared = m_declaration->properties.at(property);
    return m_declaration->isSuccessor() ? shapekit::Text::joinedWords(declared.title.value(english))
                                        : QStringLiteral("Declared_") + declared.name;
}

/// Ids that differ in their case alone have keys of their own.
QString ShapeKind::propertyKey(int property) const
{
    if (m_declaration->isSuccessor())
        return m_kind.textKey(propertyName(property).toUpper());
    return m_kind.keyPrefix + m_declaration->id + QLatin1Char('_') + m_declaration->properties.at(property).name;
}

QString ShapeKind::entryKey(int property, int entry) const
{
    const Texts &title = m_declaration->properties.at(property).entryTitles.at(entry);
    if (m_declaration->isSuccessor())
        return m_kind.textKey(shapekit::Text::joinedWords(title.value(english)).toUpper());
    return propertyKey(property) + QLatin1Char('_') + m_declaration->properties.at(property).entries.at(entry);
}

QVector<const shapekit::Text *> ShapeKind::entries(int property) const
{
    QVector<const shapekit::Text *> found;
    for (const auto &entry : m_entries.at(size_t(property)))
        found.append(entry.get());
    return found;
}

QMap<QString, QString> ShapeKind::texts(const QString &language) const
{
    QMap<QString, QString> table;
    addText(table, m_kind.nameKey(), m_declaration->name, language);
    addText(table, wordsKey(), m_declaration->words, language);
    for (int i = 0; i < m_declaration->properties.size(); ++i) {
        const PropertyDeclaration &property = m_declaration->properties.at(i);
        addText(table, propertyKey(i), property.title, language);
        for (int entry = 0; entry < property.entries.size(); ++entry)
            addText(table, entryKey(i, entry), property.entryTitles.at(entry), language);
    }
    addLetterTexts(table, language);
    for (int label = 0; label < m_declaration->labels.size(); ++label)
        addLabelTexts(table, label, language);
    const KnownGroup *known = knownGroup(m_declaration->group);
    if (!known)
        addText(table, groupKey(), m_declaration->groupTitle, language);
    else if (language == english)
        table.insert(groupKey(), QString::fromUtf8(known->english));
    else if (language == QLatin1String("de"))
        table.insert(groupKey(), QString::fromUtf8(known->german));
    return table;
}

} // namespace declared
