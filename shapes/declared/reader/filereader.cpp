#include <declared/reader/filereader.h>

#include <declared/reader/filelimits.h>
#include <declared/reader/shapereader.h>
#include <declared/reader/vocabulary.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace declared {

const QString shapeNamespace = QStringLiteral("urn:gliololok:shape");
const QString svgNamespace = QStringLiteral("http://www.w3.org/2000/svg");

namespace {

/// Attributes that may be given in several languages.
const QStringList textAttributes{QStringLiteral("name"), QStringLiteral("title"), QStringLiteral("words"),
                                 QStringLiteral("group")};
const QString english = QStringLiteral("en");
constexpr double largestSide = 10000;

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
    checkReferences();
    if (isFaulty())
        return {};
    checkUse();
    m_shape.templateText = templateText();
    m_shape.text = canonicalText();
    m_shape.hash = hashOf(m_shape.text);
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

void FileReader::faultIn(const Attribute &attribute, int offset)
{
    const Fault &fault = m_compiler.fault();
    report(Message::Error, fault.code.toLatin1().constData(), m_tree.placeIn(attribute, offset + fault.offset),
           fault.message);
}

void FileReader::locate(RangeExpression &range, Place place)
{
    locate(range.low, place);
    locate(range.high, place);
}

void FileReader::locate(CallExpression &call, Place place)
{
    for (Expression &argument : call.arguments)
        locate(argument, place);
}

void FileReader::locate(QVector<LoopExpression> &loops, Place place)
{
    for (LoopExpression &loop : loops) {
        locate(loop.from, place);
        locate(loop.to, place);
    }
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
void FileReader::checkNames(const Element &element)
{
    const QStringList known = attributesOf(element.name);
    for (const Attribute &attribute : element.attributes) {
        const QString name = attribute.name.section(QLatin1Char('.'), 0, 0);
        const bool hasLanguage = attribute.name.contains(QLatin1Char('.'));
        const bool takesLanguage = textAttributes.contains(name) && element.name != QLatin1String("let") &&
                                   element.name != QLatin1String("connection");
        if (!known.contains(name) || (hasLanguage && !takesLanguage))
            error("C04", attribute,
                  QStringLiteral("there is no attribute \"%1\" of \"%2\"%3")
                      .arg(attribute.name, element.name, suggestion(attribute.name, known)));
    }
}

Texts FileReader::textsOf(const Element &element, const char *name, const QString &namespaceUri)
{
    Texts texts;
    const Attribute *first = nullptr;
    for (const Attribute &attribute : element.attributes) {
        if (attribute.name.section(QLatin1Char('.'), 0, 0) != QLatin1String(name) ||
            attribute.namespaceUri != namespaceUri)
            continue;
        first = first ? first : &attribute;
        const QString language = attribute.name.section(QLatin1Char('.'), 1);
        texts.insert(language.isEmpty() ? english : language, attribute.value);
    }
    if (first && !texts.contains(english))
        report(
            Message::Warning, "C48", m_tree.placeIn(*first, 0),
            QStringLiteral("there is no English text: write \"%1\" without a language").arg(QLatin1String(name)));
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

void FileReader::checkElements()
{
    const QStringList known = declarations();
    for (const Element &element : m_elements)
        if (element.namespaceUri == shapeNamespace && !known.contains(element.name))
            error(
                "C04", element,
                QStringLiteral("there is no element \"%1\"%2").arg(element.name, suggestion(element.name, known)));
        else if (isSvg(element) && isLeftOut(element))
            warning("C45", element, QStringLiteral("\"%1\" is left out").arg(element.name));
}

void FileReader::checkReference(const Attribute &attribute, const QString &id, int offset)
{
    if (!m_ids.contains(id))
        error("C44", attribute,
              QStringLiteral("there is no element with the id \"%1\"%2").arg(id, suggestion(id, m_ids.keys())),
              offset);
}

/// Warns of what has no effect, or leaves the shape without one.
void FileReader::checkUse()
{
    for (const auto &defined : qAsConst(m_defined))
        if (!m_compiler.usedNames().contains(defined.first))
            report(Message::Warning, "C46", m_tree.placeIn(*defined.second, 0),
                   QStringLiteral("\"%1\" is never used").arg(defined.first));
    const auto isFigure = [](const QString &id) {
        return id == QLatin1String("figure") || id.startsWith(QLatin1String("figure_"));
    };
    const QStringList ids = m_ids.keys();
    if (std::none_of(ids.begin(), ids.end(), isFigure))
        warning("C52", m_elements.first(),
                QStringLiteral("no element has the id \"figure\", which is the outline that is hit and filled"));
}

/// Links to elements of the file, and paints and effects that are found by their id.
void FileReader::checkReferences()
{
    for (const Element &element : m_elements) {
        if (isLeftOut(element))
            continue;
        for (const Attribute &attribute : element.attributes)
            if (attribute.namespaceUri != shapeNamespace)
                checkReferencesOf(attribute);
    }
}

void FileReader::checkReferencesOf(const Attribute &attribute)
{
    static const QRegularExpression inside(QStringLiteral("url\\(\\s*['\"]?#([^'\")\\s]+)"));
    static const QRegularExpression outside(QStringLiteral("url\\(\\s*['\"]?(?![#'\"\\s]|data:)"));
    if (attribute.name == QLatin1String("href") && attribute.value.startsWith(QLatin1Char('#')))
        checkReference(attribute, attribute.value.mid(1), 1);
    for (auto match = inside.globalMatch(attribute.value); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        checkReference(attribute, found.captured(1), found.capturedStart(1));
    }
    if (isScript(attribute))
        report(Message::Warning, "C45", m_tree.placeIn(attribute, 0), QStringLiteral("scripts are left out"));
    else if (leadsOutside(attribute) || outside.match(attribute.value).hasMatch())
        report(Message::Warning, "C45", m_tree.placeIn(attribute, 0),
               QStringLiteral("links to elsewhere are left out"));
}

} // namespace declared
