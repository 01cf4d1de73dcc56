#pragma once

#include <declared/core/shapestate.h>

#include <QtCore/QVector>

#include <optional>

class QZeSvgNode;
class QZeSvgStructureNode;
class QZeSvgTinyDocument;

namespace declared {

/// A node below another one, by index of child; null when there is none.
QZeSvgNode *partOf(QZeSvgNode *node, const QVector<int> &path);
/// Whether neither the node nor one around it is hidden.
bool isShown(const QZeSvgNode &node);

/// Draws what the rounds of repetitions have besides their elements.
class RoundWriter
{
public:
    virtual ~RoundWriter() = default;
    /// Whether rounds have to be written although their expressions have the values that they had.
    virtual bool hasChanged(int repeat) const = 0;
    virtual void begin(int repeat) = 0;
    /// Called for each round, while its loops have these values.
    virtual void write(int repeat, QZeSvgNode &copy, const QVector<double> &values) = 0;
    virtual void end(int repeat) = 0;
};

/// The elements of one shape's document that expressions write, and the copies of those that are repeated.
class Figure
{
public:
    explicit Figure(const Declaration &declaration);

    /// Writes what differs from what is there. Elements with a value that isn't finite, or that their attribute
    /// doesn't take, are not drawn.
    void write(QZeSvgTinyDocument &document, ShapeState &state, RoundWriter &rounds);
    /// Copies have the paints of what they are copies of.
    void copyPaints();
    /// Groups whose content is repeated.
    QVector<QZeSvgStructureNode *> repeatedGroups() const;

private:
    struct Repeated
    {
        QZeSvgStructureNode *group = nullptr;
        QVector<QZeSvgNode *> copies;  ///< the template's own first
        std::optional<Inputs> written; ///< what the rounds were made of; none while they have to be written
        Budget cost;
    };

    void find(QZeSvgTinyDocument &document);
    void writeRepeated(int index, ShapeState &state, RoundWriter &rounds);
    int writeRounds(int index, ShapeState &state, RoundWriter &rounds);
    bool addCopy(Repeated &repeated);
    void writeRound(int index, int round, ShapeState &state);
    void writeElement(const ElementDeclaration &element, QZeSvgNode &node, ShapeState &state);
    bool writeAttributes(const ElementDeclaration &element, QZeSvgNode &node, ShapeState &state);
    bool writeAttribute(const AttributeDeclaration &attribute, const Value &value, QZeSvgNode &node,
                        ShapeState &state);
    bool writeLetters(const LettersDeclaration &letters, QZeSvgNode &node, ShapeState &state);

    const Declaration &m_declaration;
    QVector<Repeated> m_repeated;
    int m_copies = 0;
};

} // namespace declared
