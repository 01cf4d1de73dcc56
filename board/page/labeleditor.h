#pragma once

#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtWidgets/QTextEdit>

class CBaseObject;
class QGraphicsView;

namespace board {

/// A text of an object that is written on the page (pagehost::LabelPlaces).
struct EditableLabel
{
    qint32 propertyId = 0;
    QString text;
    QRectF box;          ///< item coordinates
    double fontSize = 0; ///< item units
    bool isBold = false;
    bool hasManyLines = true;
    QColor color;
    Qt::Alignment alignment;
};

/// In drawing order; empty for an object without such texts.
QVector<EditableLabel> labelsOf(CBaseObject &object);

/// Writes a text of an object in its place on the page, with input methods. The object shows and records every
/// letter; the end makes one step to take back.
///
/// Esc, Ctrl and the return key, and a click elsewhere end it; so does the return key in a text of one line. In
/// other texts there are lists (page/listediting.h). Pasted text loses its formats but for lists, with Ctrl+Shift+V
/// those, too. Exponents and indices become raised and lowered characters (page/formulatyping.h).
class LabelEditor : public QTextEdit
{
    Q_OBJECT

public:
    /// Covers the label in the view, with all of its text selected. The text of a new object belongs to the step
    /// that has added it, and makes none.
    LabelEditor(CBaseObject *object, const EditableLabel &label, bool isNewObject, QGraphicsView *view);

    /// Makes the step and deletes the editor in the next turn of the event loop.
    void finish();

Q_SIGNALS:
    /// Null for an object that is gone. `madeStep` unless the text has stayed as it was.
    void finished(CBaseObject *object, bool madeStep);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    bool editList(const QKeyEvent &event);
    void pastePlain();
    void type(const QString &text, bool record);
    void takePlace();
    void followLabel();

    QPointer<CBaseObject> m_object;
    EditableLabel m_label;
    QGraphicsView *m_view;
    bool m_isNewObject;
    bool m_isFinished = false;
};

} // namespace board
