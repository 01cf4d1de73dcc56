#pragma once

#include "document/documentreading.h"
#include "document/prototype.h"
#include "resolve/settledtree.h"

namespace Svg {

/// A document that can be changed: elements, their facts, and overrides by document-wide styling. Nodes are named
/// by index; the public node objects refer to it.
class Document : public SettledTree
{
public:
    explicit Document(const PrototypePointer &prototype);

    const Tree &tree() const override { return m_tree; }
    /// Copies the resolved facts of the prototype, unless that has been done.
    void settle() override;
    QVector<Message> messages() const { return m_prototype->settled().messages; }
    quint32 revision() const override { return m_revision; }
    quint32 referenceRevision() const { return m_referenceRevision; }
    /// Increases with every change that may affect animation, with its kind.
    quint32 animationRevision() const { return m_animationRevision; }
    /// Makes the revision differ from those of all drawings up to `last`.
    void raiseRevision(quint32 last) { m_revision = qMax(m_revision, last) + 1; }

    FactsPointer facts(NodeIndex index) override;
    FactsPointer factsBelow(NodeIndex child, const FactsPointer &above) override;
    Resolver resolver() override
    {
        return Resolver(m_tree, m_referenceRevision, {&m_gradients, &m_fonts, &m_measuring, documentReader()});
    }
    std::unique_ptr<SettledTree> imageDocument(const ImageContent &image, const QSizeF &window) const override;

    /// Sets the size of the window that shows the document, which percentages refer to when the root has no size of
    /// its own.
    void setWindow(const QSizeF &size);

    QString attribute(NodeIndex index, const QString &name) const;
    void setAttribute(NodeIndex index, const QString &name, const AttributeValue &value);
    void setNumericAttribute(NodeIndex index, const QString &name, double value);
    /// Sets values that override the style of a node, as animation does, replacing the previous ones. They take
    /// precedence over `override`, which the node has otherwise.
    void setAnimatedStyle(NodeIndex index, const Attributes &values, const StyleOverridePointer &override);

    NodeIndex copySubtree(NodeIndex source);
    void discardSubtree(NodeIndex top);
    /// Whether `child` may become a child of `parent`.
    bool canAppend(NodeIndex parent, NodeIndex child) const;
    void append(NodeIndex parent, NodeIndex child, const QString &id);
    void remove(NodeIndex child);

    const StyleOverride *styleOverride(NodeIndex index) const { return stylePointer(index).data(); }
    void setStylingFlags(NodeIndex index, bool takesFill, bool takesStroke);
    StyleOverridePointer stylePointer(NodeIndex index) const override;
    void setStyleOverride(NodeIndex index, const StyleOverridePointer &override);

private:
    bool isCurrent(NodeIndex index, const FactsPointer &above) const;
    /// The facts of a node that must be resolved again.
    enum Change : quint8 { NoChange = 0, PlaceChange = 1, StyleChange = 2, GeometryChange = 4, AnyChange = 7 };
    static Change changeBy(AttributeId attribute);
    void nodeChanged(NodeIndex index, Change change);
    void noteChange(NodeIndex index, quint8 change);
    KeptFacts keptFacts(NodeIndex index, const FactsPointer &above) const;
    void structureChanged();
    /// Reads the style sheets again, after which every style is out of date.
    void settleRules();
    void setEllipseBox(NodeIndex index, AttributeId side, double value);
    void dropOverriddenStyle(NodeIndex index, AttributeId attribute, const AttributeValue &value);

    PrototypePointer m_prototype;
    Tree m_tree;
    QVector<FactsPointer> m_facts;
    GradientCache m_gradients;
    DocumentFonts m_fonts;
    ContentMeasuring m_measuring;
    /// By node index: the changes since the node's facts were made. Shorter while nothing has changed.
    QVector<quint8> m_changes;
    /// By node index; shorter while nothing has been styled.
    QVector<StyleOverridePointer> m_overrides;
    quint32 m_revision = 0;
    quint32 m_referenceRevision = 1;
    quint32 m_animationRevision = 0;
    /// Whether there was a change since the copy was made, so that facts must be checked before use.
    bool m_changed = false;
    bool m_settled = false;
};

} // namespace Svg
