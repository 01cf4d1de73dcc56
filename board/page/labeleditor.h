#pragma once

#include <pagehost/textlinks.h>

#include <QtCore/QPointer>
#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtGui/QColor>
#include <QtGui/QPixmap>
#include <QtWidgets/QTextEdit>

#include <optional>

class CBaseObject;
class QGraphicsView;
class QLineEdit;

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

/// The part of the look of letters that is not told with a label.
struct LetterLook
{
    bool isItalic = false;
    bool isUnderlined = false;
    QString family; ///< empty for the usual one
};

/// In drawing order; empty for an object without such texts.
QVector<EditableLabel> labelsOf(CBaseObject &object);

/// Writes a text of an object in its place on the page, with input methods. The object shows and records every
/// letter; the end makes one step to take back. The letters stand on the object as it looks without them, where it
/// knows pagehost::HiddenLabel, and else on paper.
///
/// Esc, Ctrl and the return key, and a click elsewhere end it; so does the return key in a text of one line. In
/// other texts there are lists (page/listediting.h). Pasted text loses its formats but for lists, with Ctrl+Shift+V
/// those, too. Exponents and indices become raised and lowered characters (page/formulatyping.h). Where the object
/// keeps links, Ctrl+K makes one of the selected letters, and Ctrl and a click open it.
class LabelEditor : public QTextEdit
{
    Q_OBJECT

public:
    /// Covers the label in the view, with all of its text selected. The text of a new object belongs to the step
    /// that has added it, and makes none.
    LabelEditor(CBaseObject *object, const EditableLabel &label, bool isNewObject, QGraphicsView *view);
    ~LabelEditor() override;

    /// Whose text it is; null for an object that is gone, and after the end.
    CBaseObject *object() const;
    /// Whose changes belong to the step that has added it.
    bool isOfNewObject() const { return m_isNewObject; }
    /// Selects nothing, and has the cursor beside the letter there (viewport coordinates of the view).
    void putCursorAt(const QPoint &pos);
    /// Shows the letters as the object has them now.
    void followLook(const LetterLook &look);
    /// Whether there may be several lines, and so lists.
    bool mayHaveLists() const { return m_label.hasManyLines; }
    /// Makes the selected lines items, those numbered ones, and those plain lines (page/listediting.h).
    void toggleList();
    /// The letters in the clipboard, without formats and marks of lists.
    void pastePlain();
    bool mayHaveLinks() const { return m_linksId != 0; }
    /// Asks for the address of a link of the selected letters.
    void askForLink();
    /// Makes the step and deletes the editor in the next turn of the event loop.
    void finish();

Q_SIGNALS:
    /// Null for an object that is gone. `madeStep` unless the text has stayed as it was.
    void finished(CBaseObject *object, bool madeStep);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    bool canInsertFromMimeData(const QMimeData *source) const override;
    void insertFromMimeData(const QMimeData *source) override;

private:
    bool editList(const QKeyEvent &event);
    std::optional<EditableLabel> presentLabel() const;
    void showLetters();
    void setColors();
    void takeLink();
    void closeLinkField();
    void sendLinks(const QVector<pagehost::TextLink> &links, bool record);
    void setForGood();
    void type(const QString &text, bool record);
    void releaseObject();
    QRect frameInView() const;
    QRect lettersAtCorner() const;
    void takePlace(double furtherRoom = 0);
    bool isAtCorner() const;
    void takePaper();
    void placeLines();
    bool hideDrawnLetters(bool areHidden);
    void paintPaper();
    void followLabel();

    QPointer<CBaseObject> m_object;
    EditableLabel m_label;
    QGraphicsView *m_view;
    LetterLook m_look;
    bool m_isNewObject;
    bool m_isFinished = false;
    qint32 m_linksId = 0;                      ///< the property of the links; 0 for none
    QVector<pagehost::TextLink> m_linksBefore; ///< at the beginning
    QPixmap m_paper;                           ///< the object behind the editor; null for plain paper
    QPoint m_paperCorner;                      ///< of its upper left corner
    QPointer<QLineEdit> m_linkField;           ///< while an address is asked for
};

} // namespace board
