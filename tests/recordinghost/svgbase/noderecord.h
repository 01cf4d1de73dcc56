#pragma once

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QMap>
#include <QtCore/QVariant>

class QXmlStreamReader;

/// A node of the recording SVG library: a type and its attributes as text.
class QZeSvgNodePrivate
{
public:
    virtual ~QZeSvgNodePrivate();

    static QZeSvgNodePrivate *of(const QZeSvgNode *node) { return node->d.get(); }
    /// A node for an element; null for an element that draws nothing.
    static QZeSvgNode *create(const QString &element, const QMap<QString, QString> &attributes);
    static QZeSvgTinyDocument *createDocument(const QMap<QString, QString> &attributes);
    static QZeSvgNode *clone(const QZeSvgNode *node);

    QString name() const;
    double number(const char *attribute, double fallback = 0) const;
    bool isRound() const { return type == QZeSvgNode::Circle || type == QZeSvgNode::Ellipse; }
    QRectF bounds() const;
    void setNumber(const QString &attribute, double value);

    QZeSvgNode::Type type = QZeSvgNode::Rect;
    QMap<QString, QString> attributes;
    QRectF frozenBounds; ///< used while bounding rectangles do not follow
    bool frozen = false;
    QZeSvgStructureNode *holder = nullptr; ///< whose child list holds the node; the document included
    QZeSvgStructureNode *shownParent = nullptr;
    QList<QZeSvgNode *> children;
    QList<QZeSvgNode *> removed; ///< kept alive until this structure node dies

private:
    static QZeSvgNode *wrap(std::unique_ptr<QZeSvgNodePrivate> record);
    QRectF roundBounds() const;
    QRectF geometryBounds() const;
    void setRoundNumber(const QString &attribute, double value);
};

/// Additional data of the document.
class RecordingDocumentRecord : public QZeSvgNodePrivate
{
public:
    ~RecordingDocumentRecord() override;
    RecordingDocumentRecord();

    static RecordingDocumentRecord *of(const QZeSvgTinyDocument *document)
    {
        return static_cast<RecordingDocumentRecord *>(QZeSvgNodePrivate::of(document));
    }

    QRectF viewBox;
    std::function<void(QPainter *)> callback;
    QVariant strokeColor;
    QVariant strokeStyle;
    QVariant strokeWidth;
    QVariant fillBrush;
    int selectionState = 0;
    bool beforeDraw = false;
    bool animated = false;
    QZeSvgTinyDocument::DrawRecord lastDraw;

    static int alive;
};

/// Paths of M, L, H, V and Z (absolute) and polygon points.
QPainterPath simplePath(const QString &data);
QPolygonF simplePolygon(const QString &points);
