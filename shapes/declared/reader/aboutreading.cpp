// Facts about the whole shape: names, group, sizing, icon, and the coded shape that it succeeds.

#include <declared/reader/filereader.h>

#include <QtCore/QRegularExpression>

#include <cmath>

namespace declared {

namespace {

const QStringList sizings{QStringLiteral("redraw"), QStringLiteral("stretch")};
const QStringList fillings{QStringLiteral("shape"), QStringLiteral("page"), QStringLiteral("none")};
const QStringList aspects{QStringLiteral("free"), QStringLiteral("kept")};
const QStringList layouts{QStringLiteral("kit")};
constexpr int longestPen = 100;
constexpr int lastRank = 1000;
/// Types of coded shapes; the host scales drawings of one of them itself.
constexpr int lastType = 1023;
constexpr int scaledType = 26;
constexpr int lastPageFilledType = 26;
constexpr int extraPageFilledType = 1000;

QString lettersAndDigits(const QString &text)
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]"));
    return QString(text).remove(others);
}

bool isPageFilled(int type)
{
    return type <= lastPageFilledType || type == extraPageFilledType;
}

} // namespace

void FileReader::readAbout()
{
    QVector<const Element *> found;
    for (const Element &element : m_elements)
        if (isShape(element, "about"))
            found.append(&element);
    if (found.isEmpty()) {
        error("C03", m_elements.first(), QStringLiteral("\"about\" is missing, which names the shape"));
        return;
    }
    if (found.size() > 1)
        error("C03", *found.at(1), QStringLiteral("\"about\" is there twice"));
    const Element &about = *found.first();
    checkNames(about);
    readNames(about);
    readId(about);
    readSizing(about);
    readIcon(about);
    readSuccession(about);
}

void FileReader::readNames(const Element &about)
{
    m_shape.name = texts(about, "name");
    if (m_shape.name.isEmpty() || m_shape.name.first().trimmed().isEmpty())
        error("C03", about, QStringLiteral("\"about\" needs a name"));
    m_shape.words = texts(about, "words");
    m_shape.groupTitle = texts(about, "group");
    m_shape.group = about.attribute(QStringLiteral("group")) ? about.value("group") : QStringLiteral("basic");
    double rank = 0;
    const Attribute *given = about.attribute(QStringLiteral("rank"));
    if (given && readNumber(*given, rank, "C06") && (rank < 1 || rank > lastRank))
        error("C06", *given, QStringLiteral("the rank is a number from 1 to 1000"));
    m_shape.rank = int(rank);
}

void FileReader::readId(const Element &about)
{
    const Attribute *id = about.attribute(QStringLiteral("id"));
    m_shape.id = id ? id->value : lettersAndDigits(m_name);
    m_shape.idPlace = id ? m_tree.placeIn(*id, 0) : m_tree.placeOf(about.offset);
    if (m_shape.id.isEmpty() || m_shape.id != lettersAndDigits(m_shape.id))
        report(Message::Error, "C05", m_shape.idPlace,
               QStringLiteral("\"%1\" is no id: letters and digits").arg(id ? id->value : m_name));
}

void FileReader::readSizing(const Element &about)
{
    int index = 0;
    if (readChoice(about.attribute(QStringLiteral("sizing")), sizings, index, "C06"))
        m_shape.sizing = Sizing(index);
    if (readChoice(about.attribute(QStringLiteral("filled")), fillings, index, "C06"))
        m_shape.filling = Filling(index);
    m_shape.keepsAspect = m_shape.sizing == Sizing::Stretched;
    if (readChoice(about.attribute(QStringLiteral("aspect")), aspects, index, "C06"))
        m_shape.keepsAspect = index == 1;
    if (const Attribute *smallest = about.attribute(QStringLiteral("smallest"))) {
        bool isRead = false;
        const QVector<double> sides = numbers(smallest->value, isRead);
        if (!isRead || sides.size() != 2 || sides[0] < 1 || sides[1] < 1)
            error("C06", *smallest, QStringLiteral("the smallest size is two numbers of at least 1"));
        else
            m_shape.smallest = {sides[0], sides[1]};
    }
    double pen = m_shape.widestPen;
    const Attribute *widest = about.attribute(QStringLiteral("pen"));
    if (widest && readNumber(*widest, pen, "C06") && (pen < 1 || pen > longestPen))
        error("C06", *widest, QStringLiteral("the widest pen is a number from 1 to 100"));
    m_shape.widestPen = int(pen);
}

void FileReader::readIcon(const Element &about)
{
    const Attribute *icon = about.attribute(QStringLiteral("icon"));
    if (!icon)
        return;
    const int index = m_ids.value(icon->value, -1);
    if (index < 0 || m_elements.at(index).name != QLatin1String("symbol")) {
        error("C44", *icon,
              QStringLiteral("there is no \"symbol\" with the id \"%1\"%2")
                  .arg(icon->value, suggestion(icon->value, m_ids.keys())));
        return;
    }
    m_shape.icon = iconText(m_elements.at(index));
}

/// A successor keeps what files of the coded shape depend on; whether the file may be one, the loader knows.
void FileReader::readSuccession(const Element &about)
{
    const Attribute *type = about.attribute(QStringLiteral("type"));
    const Attribute *layout = about.attribute(QStringLiteral("layout"));
    int index = 0;
    double number = 0;
    if (!type && !layout)
        return;
    if (!type || !layout) {
        error("C51", type ? *type : *layout, QStringLiteral("\"type\" and \"layout\" belong together"));
        return;
    }
    if (!readChoice(layout, layouts, index, "C51") || !readNumber(*type, number, "C51"))
        return;
    if (number != std::floor(number) || number < 0 || number > lastType || number == scaledType) {
        error("C51", *type, QStringLiteral("a type is a number from 0 to 1023, except 26"));
        return;
    }
    if (isPageFilled(int(number)) != (m_shape.filling == Filling::Page)) {
        error("C51", *type,
              isPageFilled(int(number))
                  ? QStringLiteral("the page fills this type: write filled=\"page\"")
                  : QStringLiteral("the page doesn't fill this type: leave filled=\"page\" out"));
        return;
    }
    m_shape.type = int(number);
    m_shape.layoutPlace = m_tree.placeIn(*layout, 0);
}

} // namespace declared
