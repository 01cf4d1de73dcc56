#include "grammar/stylesheets.h"

#include "grammar/conditionalrules.h"
#include "grammar/csstext.h"
#include "grammar/inputlimits.h"
#include "grammar/mediaqueries.h"

namespace Svg {

namespace {

constexpr int deepestBlock = 16;
constexpr int longestQuote = 40;

QString quoted(QStringView text)
{
    return text.trimmed().left(longestQuote).toString().simplified();
}

bool takeImportance(QString *value)
{
    const QLatin1String keyword("important");
    if (!value->endsWith(keyword, Qt::CaseInsensitive))
        return false;
    const QStringView before = QStringView(*value).chopped(keyword.size()).trimmed();
    if (!before.endsWith(QLatin1Char('!')))
        return false;
    *value = before.chopped(1).trimmed().toString();
    return true;
}

bool parseDeclaration(QStringView text, SheetDeclaration *declaration)
{
    CssCursor cursor(text);
    cursor.skipSpace();
    declaration->name = cursor.takeIdentifier();
    // Names of custom properties are case-sensitive.
    if (!declaration->name.startsWith(QLatin1String("--")))
        declaration->name = declaration->name.toLower();
    cursor.skipSpace();
    if (declaration->name.isEmpty() || !cursor.take(':'))
        return false;
    declaration->value = withoutComments(QStringView(cursor.at, cursor.end)).trimmed();
    declaration->important = takeImportance(&declaration->value);
    return !declaration->value.isEmpty();
}

bool isBlank(QStringView text)
{
    CssCursor cursor(text);
    cursor.skipSpace();
    return cursor.atEnd();
}

bool isName(const QString &name, const char *known)
{
    return name.compare(QLatin1String(known), Qt::CaseInsensitive) == 0;
}

/// Context of the rules of a block.
struct Block
{
    int layer = CascadeLayers::none;
    int depth = 0;
    /// Selectors of the enclosing rule; null outside of rules.
    const QVector<Selector> *selectors = nullptr;
};

class SheetParser
{
public:
    SheetParser(QStringView text, const SheetSurroundings &surroundings, StyleSheet *sheet)
        : m_begin(text.begin())
        , m_cursor(text)
        , m_surroundings(surroundings)
        , m_layers(*surroundings.layers)
        , m_sheet(sheet)
    {
    }

    void parse() { parseBlock(Block()); }

private:
    void parseBlock(const Block &block);
    void parseRule(const Block &block);
    void parseDeclarationOrRule(const Block &block, QVector<SheetDeclaration> *declarations);
    void parseAtRule(const Block &block);
    void parseFontFace(const Block &block);
    void nameLayers(const Block &block, QStringView names);
    int layerOf(const Block &block, QStringView name);
    bool isSupported(QStringView condition) const;
    void enter(const Block &block);
    void skipBlock();
    void keep(const Block &block, QVector<SheetDeclaration> *declarations);
    bool takeMark(QLatin1String mark);
    void report(const QChar *at, const QString &text, bool tooMany = false);

    const QChar *m_begin;
    CssCursor m_cursor;
    const SheetSurroundings &m_surroundings;
    CascadeLayers &m_layers;
    StyleSheet *m_sheet;
    int m_conditionsLeft = Limits::styleRules;
};

void SheetParser::report(const QChar *at, const QString &text, bool tooMany)
{
    m_sheet->report({int(at - m_begin), text, tooMany});
}

bool SheetParser::takeMark(QLatin1String mark)
{
    const QStringView rest(m_cursor.at, m_cursor.end);
    if (!rest.startsWith(mark))
        return false;
    m_cursor.at += mark.size();
    return true;
}

void SheetParser::skipBlock()
{
    m_cursor.skipTo("}");
    m_cursor.take('}');
}

// Declarations after a nested rule form a rule of their own after it (CSS Nesting 1 §3.2).
void SheetParser::keep(const Block &block, QVector<SheetDeclaration> *declarations)
{
    if (declarations->isEmpty())
        return;
    if (m_sheet->rules.size() < Limits::styleRules) {
        m_sheet->rules.append({*block.selectors, *declarations, block.layer});
    } else {
        report(m_begin + declarations->constFirst().offset,
               QStringLiteral("Rules beyond %1 are left out.").arg(Limits::styleRules), true);
        m_cursor.at = m_cursor.end;
    }
    declarations->clear();
}

// Reads up to and including the closing brace.
void SheetParser::enter(const Block &block)
{
    if (block.depth > deepestBlock) {
        skipBlock();
        return;
    }
    parseBlock(block);
    m_cursor.take('}');
}

void SheetParser::parseRule(const Block &block)
{
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo("{}");
    const QStringView prelude(begin, m_cursor.at);
    if (!m_cursor.take('{')) {
        report(begin, QStringLiteral("A rule has no block: %1").arg(quoted(prelude)));
        if (block.depth == 0)
            m_cursor.take('}');
        return;
    }
    const std::optional<QVector<Selector>> selectors = parseSelectors(prelude, block.selectors);
    if (!selectors) {
        report(begin, QStringLiteral("The selector \"%1\" is not understood.").arg(quoted(prelude)));
        skipBlock();
        return;
    }
    enter({block.layer, block.depth + 1, &*selectors});
}

// A declaration ends before a block, unless it is a custom property (CSS Syntax 3 §5.4.4).
void SheetParser::parseDeclarationOrRule(const Block &block, QVector<SheetDeclaration> *declarations)
{
    const QChar *begin = m_cursor.at;
    m_cursor.skipTo("{;}");
    const bool isCustom = QStringView(begin, m_cursor.at).startsWith(QLatin1String("--"));
    if (m_cursor.peek() == QLatin1Char('{') && !isCustom) {
        m_cursor.at = begin;
        keep(block, declarations);
        parseRule(block);
        return;
    }
    m_cursor.skipTo(";}");
    const QStringView part(begin, m_cursor.at);
    m_cursor.take(';');
    SheetDeclaration declaration;
    declaration.offset = int(begin - m_begin);
    if (parseDeclaration(part, &declaration))
        declarations->append(declaration);
    else if (!isBlank(part))
        report(begin, QStringLiteral("\"%1\" is no declaration.").arg(quoted(part)));
}

bool SheetParser::isSupported(QStringView condition) const
{
    const auto decide = [this](const QString &function, QStringView content) {
        if (isName(function, "selector"))
            return parseSelectors(content) ? Truth::Yes : Truth::No;
        SheetDeclaration declaration;
        const bool known = function.isEmpty() && parseDeclaration(content, &declaration);
        return known && m_surroundings.supports && m_surroundings.supports(declaration) ? Truth::Yes : Truth::No;
    };
    return evaluateCondition(condition, decide) == Truth::Yes;
}

int SheetParser::layerOf(const Block &block, QStringView name)
{
    CssCursor cursor(name);
    cursor.skipSpace();
    QString full = cursor.takeIdentifier();
    while (!full.isEmpty() && cursor.take('.')) {
        const QString part = cursor.takeIdentifier();
        if (part.isEmpty())
            return CascadeLayers::leftOut;
        full += QLatin1Char('.') + part;
    }
    cursor.skipSpace();
    return cursor.atEnd() ? m_layers.enter(block.layer, full) : CascadeLayers::leftOut;
}

void SheetParser::nameLayers(const Block &block, QStringView names)
{
    CssCursor cursor(names);
    do {
        const QChar *begin = cursor.at;
        cursor.skipTo(",");
        const QStringView name(begin, cursor.at);
        if (isBlank(name) || layerOf(block, name) == CascadeLayers::leftOut)
            report(begin, QStringLiteral("\"%1\" is not taken as a layer.").arg(quoted(name)));
    } while (cursor.take(','));
}

void SheetParser::parseAtRule(const Block &block)
{
    const QChar *begin = m_cursor.at;
    m_cursor.take('@');
    const QString name = m_cursor.takeIdentifier();
    const QChar *preludeBegin = m_cursor.at;
    m_cursor.skipTo("{;}");
    const QStringView prelude(preludeBegin, m_cursor.at);
    const bool isLayer = isName(name, "layer");
    if (!m_cursor.take('{')) {
        m_cursor.take(';');
        if (isLayer)
            nameLayers(block, prelude);
        else if (!isName(name, "charset") && !isName(name, "namespace"))
            report(begin, QStringLiteral("\"@%1\" has no effect.").arg(name));
        return;
    }
    Block inner = block;
    ++inner.depth;
    bool holds = isLayer;
    if (isLayer) {
        inner.layer = layerOf(block, prelude);
        holds = inner.layer != CascadeLayers::leftOut;
        if (!holds)
            report(begin, QStringLiteral("\"%1\" is not taken as a layer.").arg(quoted(prelude)));
    } else if (isName(name, "media")) {
        holds = --m_conditionsLeft >= 0 && includesScreens(prelude);
    } else if (isName(name, "supports")) {
        holds = --m_conditionsLeft >= 0 && isSupported(prelude);
    } else if (isName(name, "font-face")) {
        parseFontFace(block);
        return;
    } else {
        report(begin, QStringLiteral("\"@%1\" has no effect.").arg(name));
    }
    if (holds)
        enter(inner);
    else
        skipBlock();
}

// Its descriptors have the syntax of declarations.
void SheetParser::parseFontFace(const Block &block)
{
    static const QVector<Selector> none;
    QVector<SheetDeclaration> descriptors;
    for (;;) {
        m_cursor.skipSpace();
        if (m_cursor.take('}') || m_cursor.atEnd())
            break;
        parseDeclarationOrRule({block.layer, block.depth + 1, &none}, &descriptors);
    }
    if (m_sheet->fontFaces.size() < Limits::fonts)
        m_sheet->fontFaces.append(descriptors);
}

void SheetParser::parseBlock(const Block &block)
{
    QVector<SheetDeclaration> declarations;
    for (;;) {
        m_cursor.skipSpace();
        if (m_cursor.atEnd() || (block.depth > 0 && m_cursor.peek() == QLatin1Char('}')))
            break;
        if (block.depth == 0 && (takeMark(QLatin1String("<!--")) || takeMark(QLatin1String("-->"))))
            continue;
        if (m_cursor.peek() == QLatin1Char('@')) {
            keep(block, &declarations);
            parseAtRule(block);
        } else if (block.selectors) {
            parseDeclarationOrRule(block, &declarations);
        } else {
            parseRule(block);
        }
    }
    keep(block, &declarations);
}

} // namespace

void StyleSheet::report(const StyleProblem &problem)
{
    if (problem.tooMany || problems.size() < Limits::messages)
        problems.append(problem);
}

StyleSheet parseStyleSheet(QStringView text, const SheetSurroundings &surroundings)
{
    StyleSheet sheet;
    CascadeLayers own;
    SheetSurroundings used = surroundings;
    if (!used.layers)
        used.layers = &own;
    SheetParser(text, used, &sheet).parse();
    return sheet;
}

} // namespace Svg
