#pragma once

#include <declared/core/shapestate.h>

#include <QtCore/QVector>

#include <functional>

class QZeSvgNode;
class QZeSvgStructureNode;
class QZeSvgTinyDocument;

namespace declared {

/// A node below another one, by index of child; null when there is none.
QZeSvgNode *partOf(QZeSvgNode *node, const QVector<int> &path);

/// Notified of each round of a repetition, while its loops have the values of that round.
using RoundListener = std::function<void(int repeat, QZeSvgNode &copy, const QVector<double> &values)>;

/// The elements of one shape's document that expressions write, and the copies of those that are repeated.
class Figure
{
public:
    explicit Figure(const Declaration &declaration);

    /// Writes what differs from what is there. Elements with a value that isn't finite, or that their attribute
    /// doesn't take, are not drawn.
    void write(QZeSvgTinyDocument &document, ShapeState &state, const RoundListener &listener = {});
    /// Copies have the paints of what they are copies of.
    void copyPaints();
    /// Groups whose content is repeated.
    QVector<QZeSvgStructureNode *> repeatedGroups() const;

private:
    struct Repeated
    {
        QZeSvgStructureNode *group = nullptr;
        QVector<QZeSvgNode *> copies; ///< the template's own first
    };

    void find(QZeSvgTinyDocument &document);
    void writeRepeated(int index, ShapeState &state, const RoundListener &listener);
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
