#include <declared/core/declaredlook.h>

#include <declared/core/declaredshape.h>
#include <declared/core/review.h>
#include <declared/expressions/functions.h>
#include <declared/reader/filereader.h>
#include <declared/reader/sourcetree.h>

#include <shapekit/shapeobject.h>

#include <algorithm>
#include <utility>

namespace declared {

namespace {

/// A piece of the file and the text that takes its place.
struct Edit
{
    int offset = 0;
    int length = 0;
    QString text;
};

/// Lines of a long value are broken at blanks.
constexpr int longestLine = 100;
const QString lineBreak = QStringLiteral("\n             ");

QString broken(const QString &value)
{
    QString text;
    int length = 0;
    const QStringList words = value.split(QLatin1Char(' '));
    for (const QString &word : words) {
        const bool isTooLong = length > 0 && length + word.size() > longestLine;
        text += isTooLong ? lineBreak : length > 0 ? QStringLiteral(" ") : QString();
        text += word;
        length = isTooLong ? word.size() : length + word.size() + 1;
    }
    return text;
}

class LookWriter
{
public:
    LookWriter(const ShapeKind &kind, DeclaredShape &shape, const QVector<Message> &messages)
        : m_declaration(kind.declaration())
        , m_shape(shape)
        , m_messages(messages)
    {
    }

    QByteArray written(const QByteArray &file)
    {
        QVector<Message> ignored;
        if (!m_tree.read(file, ignored))
            return file;
        for (const ElementDeclaration &element : m_declaration.elements)
            if (element.repeat < 0 && isTold("C35", element.place))
                writeElement(element);
        for (int i = 0; i < m_declaration.repeats.size(); ++i)
            writeRepeat(i);
        for (int number = 1; number <= m_declaration.points.size(); ++number)
            if (isTold("C34", m_declaration.point(number).source))
                writePoint(number);
        return edited();
    }

private:
    bool isTold(const char *code, Place place) const
    {
        return std::any_of(m_messages.begin(), m_messages.end(), [&](const Message &message) {
            return message.code == QLatin1String(code) && message.line == place.line &&
                   message.column == place.column;
        });
    }

    const SourceElement *elementAt(Place place) const
    {
        for (const SourceElement &element : m_tree.elements()) {
            const Place found = m_tree.placeOf(element.offset);
            if (found.line == place.line && found.column == place.column)
                return &element;
        }
        return nullptr;
    }

    QString textOf(const Expression &expression, const QString &otherwise = {})
    {
        const Value value = expression.isValid() ? m_shape.presentState().valueOf(expression) : Value();
        return expression.isValid() && value.isFinite() ? value.text.simplified() : otherwise;
    }

    /// Attributes of the look, by name.
    QMap<QString, QString> lookOf(const ElementDeclaration &element)
    {
        QMap<QString, QString> look;
        const auto add = [&](const QString &name, const Expression &expression) {
            if (expression.isValid())
                look.insert(name, textOf(expression));
        };
        for (const AttributeDeclaration &attribute : element.attributes)
            add(attribute.name, attribute.text);
        add(QStringLiteral("x"), element.letters.x);
        add(QStringLiteral("y"), element.letters.y);
        add(QStringLiteral("font-size"), element.letters.size);
        return look;
    }

    void writeElement(const ElementDeclaration &declared)
    {
        const SourceElement *element = elementAt(declared.place);
        if (!element)
            return;
        const QMap<QString, QString> look = lookOf(declared);
        for (auto attribute = look.begin(); attribute != look.end(); ++attribute)
            setAttribute(*element, attribute.key(), *attribute);
        if (declared.letters.content.isValid())
            setContent(*element, textOf(declared.letters.content));
    }

    void writePoint(int number)
    {
        const SourceElement *element = elementAt(m_declaration.point(number).source);
        if (!element)
            return;
        const QPointF centre = m_shape.standingPoints().at(number - 1);
        setAttribute(*element, QStringLiteral("x"),
                     numberText(centre.x() - element->value("width").toDouble() / 2));
        setAttribute(*element, QStringLiteral("y"),
                     numberText(centre.y() - element->value("height").toDouble() / 2));
    }

    void setAttribute(const SourceElement &element, const QString &name, const QString &value)
    {
        const SourceAttribute *present = element.attribute(name);
        const QString written = broken(value).toHtmlEscaped();
        if (present) {
            m_edits.append({present->offset, lengthOf(*present), written});
            return;
        }
        const QString added = QStringLiteral(" %1=\"%2\"").arg(name, written);
        m_edits.append({element.offset + 1 + nameLength(element), 0, added});
    }

    int lengthOf(const SourceAttribute &attribute) const
    {
        const QChar quote = m_tree.text().at(attribute.offset - 1);
        return m_tree.text().indexOf(quote, attribute.offset) - attribute.offset;
    }

    /// Of the element's name with its prefix.
    int nameLength(const SourceElement &element) const
    {
        int end = element.offset + 1;
        while (end < m_tree.text().size() && !m_tree.text().at(end).isSpace() &&
               m_tree.text().at(end) != QLatin1Char('>') && m_tree.text().at(end) != QLatin1Char('/'))
            ++end;
        return end - element.offset - 1;
    }

    /// Behind the ">" of the element's tag.
    int tagEnd(const SourceElement &element) const
    {
        int end = element.offset;
        for (const SourceAttribute &attribute : element.attributes)
            end = std::max(end, attribute.offset + lengthOf(attribute));
        return m_tree.text().indexOf(QLatin1Char('>'), end) + 1;
    }

    bool isEmptyTag(const SourceElement &element) const
    {
        return m_tree.text().at(tagEnd(element) - 2) == QLatin1Char('/');
    }

    void setContent(const SourceElement &element, const QString &content)
    {
        const int start = tagEnd(element);
        const int end = m_tree.text().indexOf(QLatin1String("</"), start);
        if (!isEmptyTag(element) && end >= start)
            m_edits.append({start, end - start, content.toHtmlEscaped()});
    }

    /// Rounds behind the first stand as elements of their own, each in a line, in place of those that are there.
    void writeRepeat(int index)
    {
        const RepeatDeclaration &repeat = m_declaration.repeats.at(index);
        QVector<const ElementDeclaration *> parts;
        bool isMeant = isTold("C35", repeat.loops.first().from.place);
        for (const ElementDeclaration &element : m_declaration.elements) {
            if (element.repeat != index)
                continue;
            parts.append(&element);
            isMeant = isMeant || isTold("C35", element.place);
        }
        const SourceElement *first = parts.isEmpty() ? nullptr : repeatedElement(*parts.first());
        if (!first || !isMeant)
            return;
        const QString &text = m_tree.text();
        const int firstEnd = isEmptyTag(*first) ? tagEnd(*first) : endOf(*first, tagEnd(*first));
        const int groupEnd =
            text.lastIndexOf(QLatin1String("</"), endOf(m_tree.elements().at(first->parent), firstEnd) - 1);
        const int lineStart = text.lastIndexOf(QLatin1Char('\n'), first->offset) + 1;
        const QString indent = text.mid(lineStart, first->offset - lineStart).trimmed().isEmpty()
                                   ? text.mid(lineStart, first->offset - lineStart)
                                   : QString();
        QString rounds;
        int round = 0;
        forEachRound(repeat, [&] {
            if (round++ == 0)
                writeParts(parts);
            else
                rounds += QLatin1Char('\n') + indent + roundText(first->offset, firstEnd, parts);
        });
        const int lastBreak = text.lastIndexOf(QLatin1Char('\n'), groupEnd);
        const int end = lastBreak >= firstEnd ? lastBreak : groupEnd;
        m_edits.append({firstEnd, end - firstEnd, rounds});
    }

    /// The child of the group that is repeated, of which this is a part.
    const SourceElement *repeatedElement(const ElementDeclaration &part) const
    {
        const SourceElement *element = elementAt(part.place);
        for (int level = 0; element && level < part.path.size(); ++level)
            element = &m_tree.elements().at(element->parent);
        return element;
    }

    void writeParts(const QVector<const ElementDeclaration *> &parts)
    {
        for (const ElementDeclaration *part : parts)
            writeElement(*part);
    }

    /// The element between two offsets as it looks in the present round; declarations and ids stay with the first.
    QString roundText(int start, int end, const QVector<const ElementDeclaration *> &parts)
    {
        const QVector<Edit> others = std::exchange(m_edits, {});
        writeParts(parts);
        for (const SourceElement &element : m_tree.elements())
            for (const SourceAttribute &attribute : element.attributes)
                if (element.offset >= start && element.offset < end &&
                    (attribute.namespaceUri == shapeNamespace || attribute.name == QLatin1String("id")))
                    removeAttribute(attribute);
        return applied(m_tree.text().mid(start, end - start), std::exchange(m_edits, others), start);
    }

    /// With the blank space before it.
    void removeAttribute(const SourceAttribute &attribute)
    {
        const QString &text = m_tree.text();
        const int prefix = attribute.prefix.isEmpty() ? 0 : attribute.prefix.size() + 1;
        int start = text.lastIndexOf(QLatin1Char('='), attribute.offset);
        while (text.at(start - 1).isSpace())
            --start;
        start -= prefix + attribute.name.size();
        while (text.at(start - 1).isSpace())
            --start;
        m_edits.append({start, attribute.offset + lengthOf(attribute) + 1 - start, {}});
    }

    /// The end of an element's closing tag; `from` is behind its first children, or behind its tag.
    int endOf(const SourceElement &element, int from) const
    {
        int depth = 1;
        const QString name = m_tree.text().mid(element.offset + 1, nameLength(element));
        const QString opening = QLatin1Char('<') + name;
        const QString closing = QStringLiteral("</") + name;
        int position = from;
        while (depth > 0) {
            const int close = m_tree.text().indexOf(closing, position);
            const int open = m_tree.text().indexOf(opening, position);
            const bool isOpened = open >= 0 && open < close;
            depth += isOpened ? 1 : -1;
            position = isOpened ? open + opening.size() : close + closing.size();
        }
        return m_tree.text().indexOf(QLatin1Char('>'), position) + 1;
    }

    template<class Action> void forEachRound(const RepeatDeclaration &repeat, Action action)
    {
        ShapeState &state = m_shape.presentState();
        const auto boundOf = [&](const Expression &bound) { return wholeOf(state.valueOf(bound).number()); };
        const LoopDeclaration &outer = repeat.loops.first();
        const double last = boundOf(outer.to);
        for (double i = boundOf(outer.from); i <= last && !state.isExhausted(); ++i) {
            state.setLoop(outer, i);
            const bool isNested = repeat.loops.size() > 1;
            const LoopDeclaration &inner = repeat.loops.last();
            const double to = isNested ? boundOf(inner.to) : 0;
            for (double k = isNested ? boundOf(inner.from) : 0; k <= to; ++k) {
                if (isNested)
                    state.setLoop(inner, k);
                action();
            }
        }
    }

    QByteArray edited() const { return applied(m_tree.text(), m_edits, 0).toUtf8(); }

    /// A piece of the file, which begins at `start`, with edits.
    static QString applied(QString text, QVector<Edit> edits, int start)
    {
        // From the end on; at one place what goes before what comes.
        std::stable_sort(edits.begin(), edits.end(), [](const Edit &a, const Edit &b) {
            return a.offset != b.offset ? a.offset > b.offset : a.length > b.length;
        });
        for (const Edit &edit : qAsConst(edits))
            text.replace(edit.offset - start, edit.length, edit.text);
        return text;
    }

    const Declaration &m_declaration;
    DeclaredShape &m_shape;
    const QVector<Message> &m_messages;
    SourceTree m_tree;
    QVector<Edit> m_edits;
};

} // namespace

QByteArray withDeclaredLook(const ShapeKind &kind, const QByteArray &file)
{
    shapekit::ShapeObject object(kind.kind());
    auto *shape = dynamic_cast<DeclaredShape *>(object.core());
    if (!shape || !shape->drawing())
        return file;
    shape->settleDrawing();
    const QVector<Message> messages = reviewed(kind, file);
    return LookWriter(kind, *shape, messages).written(file);
}

} // namespace declared
