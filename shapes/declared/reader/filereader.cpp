#include <declared/reader/filereader.h>

#include <declared/reader/filelimits.h>
#include <declared/reader/shapereader.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace declared {

const QString shapeNamespace = QStringLiteral("urn:gliololok:shape");
const QString svgNamespace = QStringLiteral("http://www.w3.org/2000/svg");

namespace {

const QStringList sizings{QStringLiteral("redraw"), QStringLiteral("stretch")};
const QStringList fillings{QStringLiteral("shape"), QStringLiteral("page"), QStringLiteral("none")};
const QStringList aspects{QStringLiteral("free"), QStringLiteral("kept")};
constexpr int longestPen = 100;
constexpr double largestSide = 10000;

QString lettersAndDigits(const QString &text)
{
    static const QRegularExpression others(QStringLiteral("[^A-Za-z0-9]"));
    return QString(text).remove(others);
}

} // namespace

SharedDeclaration readShape(const QByteArray &bytes, const QString &name, QVector<Message> *messages)
{
    QVector<Message> unread;
    QVector<Message> &told = messages ? *messages : unread;
    SourceTree tree;
    if (!tree.read(bytes, told))
        return {};
    return FileReader(tree, name, told).read();
}

FileReader::FileReader(const SourceTree &tree, const QString &name, QVector<Message> &messages)
    : m_tree(tree)
    , m_elements(tree.elements())
    , m_name(name)
    , m_messages(messages)
    , m_declaration(std::make_shared<Declaration>())
    , m_shape(*m_declaration)
    , m_compiler(m_shape.program, m_symbols)
{
}

SharedDeclaration FileReader::read()
{
    if (!readRoot())
        return {};
    readIds();
    readAbout();
    checkElements();
    findPoints();
    defineFixedNames();
    readProperties();
    readLets();
    readPoints();
    readElements();
    readConnections();
    if (isFaulty())
        return {};
    m_shape.templateText = templateText();
    m_shape.hash = hash();
    return m_declaration;
}

void FileReader::report(Message::Severity severity, const char *code, Place place, const QString &text)
{
    m_messages.append({severity, QLatin1String(code), place.line, place.column, text});
}

void FileReader::error(const char *code, const Element &element, const QString &text)
{
    report(Message::Error, code, m_tree.placeOf(element.offset), text);
}

void FileReader::error(const char *code, const Attribute &attribute, const QString &text, int offset)
{
    report(Message::Error, code, m_tree.placeIn(attribute, offset), text);
}

void FileReader::warning(const char *code, const Element &element, const QString &text)
{
    report(Message::Warning, code, m_tree.placeOf(element.offset), text);
}

void FileReader::faultIn(const Attribute &attribute)
{
    const Fault &fault = m_compiler.fault();
    report(Message::Error, fault.code.toLatin1().constData(), m_tree.placeIn(attribute, fault.offset),
           fault.message);
}

bool FileReader::isFaulty() const
{
    return std::any_of(m_messages.begin(), m_messages.end(),
                       [](const Message &message) { return message.severity == Message::Error; });
}

bool FileReader::isShape(const Element &element, const char *name) const
{
    return element.namespaceUri == shapeNamespace && element.name == QLatin1String(name);
}

const SourceAttribute *FileReader::shapeAttribute(const Element &element, const QByteArray &name) const
{
    return element.attribute(QLatin1String(name), shapeNamespace);
}

/// A language stands behind a point: "title.de".
void FileReader::checkNames(const Element &element, const QStringList &known)
{
    for (const Attribute &attribute : element.attributes) {
        const QString name = attribute.name.section(QLatin1Char('.'), 0, 0);
        const bool hasLanguage = attribute.name.contains(QLatin1Char('.'));
        const bool takesLanguage = name == QLatin1String("name") || name == QLatin1String("title");
        if (!known.contains(name) || (hasLanguage && !takesLanguage))
            error("C04", attribute,
                  QStringLiteral("there is no attribute \"%1\" of \"%2\"%3")
                      .arg(attribute.name, element.name, suggestion(attribute.name, known)));
    }
}

Texts FileReader::texts(const Element &element, const char *name)
{
    Texts texts;
    for (const Attribute &attribute : element.attributes)
        if (attribute.name == QLatin1String(name))
            texts.insert(QStringLiteral("en"), attribute.value);
        else if (attribute.name.startsWith(QLatin1String(name) + QLatin1Char('.')))
            texts.insert(attribute.name.section(QLatin1Char('.'), 1), attribute.value);
    return texts;
}

bool FileReader::readNumber(const Attribute &attribute, double &number, const char *code)
{
    bool isNumber = false;
    const double read = attribute.value.trimmed().toDouble(&isNumber);
    if (!isNumber || !qIsFinite(read)) {
        error(code, attribute, QStringLiteral("\"%1\" is no number").arg(attribute.value));
        return false;
    }
    number = read;
    return true;
}

bool FileReader::readChoice(const Attribute *attribute, const QStringList &values, int &index, const char *code)
{
    if (!attribute)
        return false;
    index = values.indexOf(attribute->value);
    if (index < 0)
        error(code, *attribute,
              QStringLiteral("\"%1\" is none of %2%3")
                  .arg(attribute->value, values.join(QStringLiteral(", ")), suggestion(attribute->value, values)));
    return index >= 0;
}

QVector<double> FileReader::numbers(const QString &text, bool &isRead) const
{
    static const QRegularExpression between(QStringLiteral("[\\s,;]+"));
    QVector<double> numbers;
    isRead = true;
    const QStringList parts = text.split(between, Qt::SkipEmptyParts);
    for (const QString &part : parts) {
        bool isNumber = false;
        numbers.append(part.toDouble(&isNumber));
        isRead = isRead && isNumber && qIsFinite(numbers.last());
    }
    return numbers;
}

bool FileReader::readRoot()
{
    const Element &root = m_elements.first();
    if (root.name != QLatin1String("svg") || !isSvg(root)) {
        error("C02", root, QStringLiteral("the root is no \"svg\" in the namespace \"%1\"").arg(svgNamespace));
        return false;
    }
    const Attribute *box = root.attribute(QStringLiteral("viewBox"));
    bool isRead = box != nullptr;
    const QVector<double> sides = box ? numbers(box->value, isRead) : QVector<double>();
    const auto isSide = [](double side) { return side > 0 && side <= largestSide; };
    if (isRead && sides.size() == 4 && sides[0] == 0 && sides[1] == 0 && isSide(sides[2]) && isSide(sides[3])) {
        m_shape.size = {sides[2], sides[3]};
        return true;
    }
    const QString wanted = QStringLiteral("the view box is \"0 0 width height\", with sides above 0");
    if (box)
        error("C02", *box, wanted);
    else
        error("C02", root, wanted);
    return false;
}

void FileReader::readIds()
{
    for (int i = 0; i < m_elements.size(); ++i) {
        const Attribute *id = m_elements.at(i).attribute(QStringLiteral("id"));
        if (!id || !isSvg(m_elements.at(i)))
            continue;
        if (m_ids.contains(id->value))
            error("C11", *id, QStringLiteral("the id \"%1\" is there twice").arg(id->value));
        m_ids.insert(id->value, i);
    }
}

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
    readAboutOf(*found.first());
}

void FileReader::readAboutOf(const Element &about)
{
    checkNames(about, {QStringLiteral("name"), QStringLiteral("id"), QStringLiteral("group"),
                       QStringLiteral("sizing"), QStringLiteral("aspect"), QStringLiteral("filled"),
                       QStringLiteral("smallest"), QStringLiteral("pen")});
    m_shape.name = texts(about, "name");
    if (m_shape.name.isEmpty() || m_shape.name.first().trimmed().isEmpty())
        error("C03", about, QStringLiteral("\"about\" needs a name"));
    else if (!m_shape.name.contains(QStringLiteral("en")))
        warning("C48", about, QStringLiteral("there is no English name: write \"name\" without a language"));
    const Attribute *id = about.attribute(QStringLiteral("id"));
    m_shape.id = id ? id->value : lettersAndDigits(m_name);
    if (m_shape.id.isEmpty() || m_shape.id != lettersAndDigits(m_shape.id)) {
        const QString text = QStringLiteral("\"%1\" is no id: letters and digits").arg(id ? id->value : m_name);
        id ? error("C05", *id, text) : error("C05", about, text);
    }
    m_shape.group = about.attribute(QStringLiteral("group")) ? about.value("group") : QStringLiteral("basic");
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

void FileReader::checkElements()
{
    const QStringList known{QStringLiteral("about"), QStringLiteral("property"), QStringLiteral("entry"),
                            QStringLiteral("let"), QStringLiteral("connection")};
    for (const Element &element : m_elements)
        if (element.namespaceUri == shapeNamespace && !known.contains(element.name))
            error(
                "C04", element,
                QStringLiteral("there is no element \"%1\"%2").arg(element.name, suggestion(element.name, known)));
        else if (isSvg(element) && element.name == QLatin1String("script"))
            warning("C45", element, QStringLiteral("scripts are left out"));
}

} // namespace declared
