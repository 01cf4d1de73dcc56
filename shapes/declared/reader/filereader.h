#pragma once

#include <declared/expressions/compiler.h>
#include <declared/reader/declaration.h>
#include <declared/reader/message.h>
#include <declared/reader/sourcetree.h>

#include <QtCore/QSet>

class QXmlStreamWriter;

namespace declared {

extern const QString shapeNamespace;
extern const QString svgNamespace;

/// How an element stands in the template that the library gets.
struct TemplateElement
{
    QString id;                                  ///< empty: its own
    QVector<QPair<QString, QString>> attributes; ///< instead of its own
    QStringList dropped;                         ///< names of attributes
    QStringList kept;                            ///< paints that the user's don't reach
    bool isLetters = false;                      ///< a text that becomes a path
    bool hasOneChild = false;                    ///< a group that is repeated
};

/// The value of a "fill" or "stroke" that follows the pen's colour.
inline bool isPen(const QString &paint)
{
    return paint.trimmed() == QLatin1String("{pen}");
}

/// Reads one file: fills a declaration and collects messages.
class FileReader
{
public:
    FileReader(const SourceTree &tree, const QString &name, QVector<Message> &messages);

    /// Null after an error.
    SharedDeclaration read();

private:
    using Element = SourceElement;
    using Attribute = SourceAttribute;

    /// @name Messages
    /// @{
    void report(Message::Severity severity, const char *code, Place place, const QString &text);
    void error(const char *code, const Element &element, const QString &text);
    void error(const char *code, const Attribute &attribute, const QString &text, int offset = 0);
    void warning(const char *code, const Element &element, const QString &text);
    /// The fault of a part of an attribute that begins at `offset`.
    void faultIn(const Attribute &attribute, int offset);
    bool isFaulty() const;
    /// Takes what the compiler made of an attribute; false, with its fault told, when there is nothing.
    template<class Result>
    bool take(std::optional<Result> compiled, Result &result, const Attribute &attribute, int offset = 0)
    {
        if (compiled) {
            result = *compiled;
            locate(result, m_tree.placeIn(attribute, 0));
        } else {
            faultIn(attribute, offset);
        }
        return compiled.has_value();
    }
    static void locate(Expression &expression, Place place) { expression.place = place; }
    static void locate(RangeExpression &range, Place place);
    static void locate(CallExpression &call, Place place);
    static void locate(QVector<LoopExpression> &loops, Place place);
    /// @}

    /// @name Attributes
    /// @{
    void checkNames(const Element &element);
    /// The texts of an attribute by language; warns when there are some, but no English one.
    Texts texts(const Element &element, const char *name) { return textsOf(element, name, {}); }
    Texts textsOf(const Element &element, const char *name, const QString &namespaceUri);
    bool readNumber(const Attribute &attribute, double &number, const char *code);
    bool readChoice(const Attribute *attribute, const QStringList &values, int &index, const char *code);
    QVector<double> numbers(const QString &text, bool &isRead) const;
    const Attribute *shapeAttribute(const Element &element, const QByteArray &name) const;
    bool isShape(const Element &element, const char *name) const;
    bool isSvg(const Element &element) const { return element.namespaceUri == svgNamespace; }
    /// @}

    bool readRoot();
    void readIds();
    void readAbout();
    void readNames(const Element &about);
    void readId(const Element &about);
    void readSizing(const Element &about);
    void readIcon(const Element &about);
    void readSuccession(const Element &about);
    void checkElements();
    void checkReferences();
    void checkUse();
    void checkReferencesOf(const Attribute &attribute);
    void checkReference(const Attribute &attribute, const QString &id, int offset);

    void defineFixedNames();
    QString nameFault(const QString &name) const;
    bool define(const QString &name, const Attribute &attribute, const Symbol &symbol);
    qint32 newSlot() { return m_shape.slotCount++; }

    void readProperties();
    void readProperty(const Element &element);
    /// The same for every version of a file that keeps type and name, wherever the property stands in it.
    static int propertyId(const QString &kind, const QString &name);
    void checkTitle(const Element &element, const PropertyDeclaration &property);
    void readFormer(const Element &element, PropertyDeclaration &property);
    void checkFormer(const Element &element);
    void readValue(const Element &element, PropertyDeclaration &property);
    void readBounds(const Element &element, PropertyDeclaration &property);
    void readList(const Element &element, const Attribute &value, PropertyDeclaration &property);
    void readEntries(const Element &element, PropertyDeclaration &property, const Attribute &value);

    struct Let
    {
        const Element *element;
        const Attribute *value;
        QString name;
        bool isFunction;
        QStringList mentioned;
    };
    void readLets();
    bool readLetName(const Element &element, Let &let, QStringList &parameters);
    void compileLets(QVector<Let> lets);
    void compileLet(const Let &let);
    /// The control points that an expression depends on, a bit each; those of a list aside.
    quint32 pointsOf(const Expression &expression) const;

    void findPoints();
    void readPoints();
    void readPoint(const Element &element, int number);
    void readAxis(const Element &element, const char *axis, AxisDeclaration &declared, int number);
    void readFollowing(const Element &element, const QByteArray &axis, AxisDeclaration &declared);
    void readTrack(const Element &element, TrackDeclaration &track, int number);
    void readMirror(const Element &element, PointDeclaration &point, int number);
    void checkOwnPoint(const Attribute &attribute, const Expression &expression, int number);
    void checkMirror(const Element &element, const PointDeclaration &point);
    void checkLimits(const Element &element);
    void writePoint(int index, const PointDeclaration &point);

    void readElements();
    void readElement(int index, int repeat, const QVector<int> &path);
    void readAttribute(const Element &element, const Attribute &attribute, ElementDeclaration &declared,
                       TemplateElement &written);
    void readWritten(const Attribute &attribute, ElementDeclaration &declared, TemplateElement &written);
    void readKeeps(const Attribute &attribute, TemplateElement &written);
    void readLetters(const Element &element, ElementDeclaration &declared, TemplateElement &written);
    bool isLabel(const Element &element) const;
    void readLabel(int index, int repeat, const QVector<int> &path);
    void readRepeatedLabel(const Element &element, LabelDeclaration &label);
    bool isFilledByPen(const Element &element) const;
    void checkLabelIds();
    void readLabelBox(const Element &element, LabelDeclaration &label);
    void readLabelLook(const Element &element, LabelDeclaration &label);
    void readRepeat(int index);
    void readRepeated(int index, int repeat, const QVector<int> &path);
    /// Slots that the rounds of a repetition read, its loops aside.
    QVector<qint32> inputsOfRounds(int repeat) const;
    bool isDrawn(const Element &element) const;
    /// The way from the root to an element, by index of drawn child.
    QVector<int> wayTo(int index) const;
    /// The elements in an element that are drawn, without definitions and titles.
    QVector<int> drawnChildren(const Element &element) const;
    const Element *parentOf(const Element &element) const
    {
        return element.parent < 0 ? nullptr : &m_elements.at(element.parent);
    }
    QString inheritedValue(const Element &element, const char *name) const;
    void readConnections();

    QByteArray templateText() const;
    QByteArray iconText(const Element &symbol) const;
    QByteArray canonicalText() const;
    bool isLeftOut(const Element &element) const;
    static bool leadsOutside(const Attribute &attribute);
    static bool isScript(const Attribute &attribute);
    static bool isWritten(const Attribute &attribute);
    QString paintOf(int index, const QString &paint) const;
    QStringList keptPaints(int index) const;
    void writeElement(QXmlStreamWriter &writer, int index) const;
    void writeCanonical(QXmlStreamWriter &writer, int index) const;

    const SourceTree &m_tree;
    const QVector<SourceElement> &m_elements;
    QString m_name;
    QVector<Message> &m_messages;
    std::shared_ptr<Declaration> m_declaration;
    Declaration &m_shape;
    Symbols m_symbols;
    Compiler m_compiler;
    QHash<QString, int> m_ids;                            ///< elements by id
    QVector<QPair<QString, const Attribute *>> m_defined; ///< names of the file
    QVector<int> m_points;                                ///< elements of the control points, by index
    QHash<qint32, quint32> m_pointsOfSlot;                ///< a bit for each point that a value depends on
    QMap<int, TemplateElement> m_written;                 ///< by element
    QSet<int> m_done;                                     ///< elements whose declarations are read
};

} // namespace declared
