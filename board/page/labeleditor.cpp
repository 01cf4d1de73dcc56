#include "page/labeleditor.h"

#include "page/formulatyping.h"
#include "page/linkediting.h"
#include "page/links.h"
#include "page/listediting.h"

#include <pagehost/attributestream.h>
#include <pagehost/objectplugin.h>
#include <pagehost/writing.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtCore/QDataStream>
#include <QtCore/QMimeData>
#include <QtCore/QtMath>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QTextCursor>
#include <QtWidgets/QGraphicsView>
#include <QtWidgets/QLineEdit>

#include <algorithm>
#include <cmath>

namespace board {

namespace {

/// Room around the label, logical pixels.
constexpr int margin = 3;
constexpr int smallestFont = 6;
/// Of the editor, logical pixels.
constexpr int smallestWidth = 40;
constexpr int linkFieldWidth = 220;
/// Of paper that dark letters are written on, and of the other one.
constexpr int lightLetters = 170;
constexpr QRgb lightPaper = 0xffffffff;
constexpr QRgb darkPaper = 0xff404040;

bool isLinkKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_K && event.modifiers() == Qt::ControlModifier;
}

} // namespace

QVector<EditableLabel> labelsOf(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(pagehost::LabelPlaces, out))
        return {};
    QDataStream in(bytes);
    qint32 count = 0;
    in >> count;
    QVector<EditableLabel> labels;
    for (int i = 0; i < count && in.status() == QDataStream::Ok; ++i) {
        EditableLabel label;
        qint32 alignment = 0;
        in >> label.propertyId >> label.text >> label.box >> label.fontSize >> label.isBold >> label.hasManyLines >>
            label.color >> alignment;
        label.alignment = Qt::Alignment(alignment);
        if (in.status() == QDataStream::Ok)
            labels.append(label);
    }
    return labels;
}

LabelEditor::LabelEditor(CBaseObject *object, const EditableLabel &label, bool isNewObject, QGraphicsView *view)
    : QTextEdit(view->viewport())
    , m_object(object)
    , m_label(label)
    , m_view(view)
    , m_isNewObject(isNewObject)
{
    setAcceptRichText(false);
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setLineWrapMode(label.hasManyLines ? QTextEdit::WidgetWidth : QTextEdit::NoWrap);
    pagehost::setBeingWritten(*object, true);
    showLetters();
    document()->setDocumentMargin(0);
    setPlainText(label.text);
    const LabelLinkState links = linksOf(*object, label.propertyId);
    m_linksId = links.propertyId;
    m_linksBefore = links.links;
    showLinks(*document(), links.links);
    selectAll();

    takePlace();
    connect(this, &QTextEdit::textChanged, this, [this] {
        type(toPlainText(), true);
        sendLinks(linksIn(*document()), true);
        followLabel();
    });
    connect(this, &QTextEdit::cursorPositionChanged, this, [this] {
        if (isBehindLink(textCursor()))
            setCurrentCharFormat({});
    });
    show();
    setFocus();
}

void LabelEditor::showLetters()
{
    const double zoom = std::hypot(m_view->transform().m11(), m_view->transform().m12());
    const QString usual = QStringLiteral("sans-serif");
    QFont font(usual);
    if (!m_look.family.isEmpty())
        font.setFamilies({m_look.family, usual});
    font.setPixelSize(std::max(smallestFont, qRound(m_label.fontSize * zoom)));
    font.setBold(m_label.isBold);
    font.setItalic(m_look.isItalic);
    font.setUnderline(m_look.isUnderlined);
    setFont(font);
    setColors();
    QTextOption option = document()->defaultTextOption();
    option.setAlignment(m_label.alignment & Qt::AlignHorizontal_Mask);
    document()->setDefaultTextOption(option);
}

/// The letters stand on what paintPaper() paints.
void LabelEditor::setColors()
{
    const QString colors =
        QStringLiteral("QTextEdit { color: %1; background: transparent; }").arg(m_label.color.name());
    if (styleSheet() != colors)
        setStyleSheet(colors);
}

void LabelEditor::putCursorAt(const QPoint &pos)
{
    setTextCursor(cursorForPosition(viewport()->mapFromParent(mapFromParent(pos))));
}

void LabelEditor::followLook(const LetterLook &look)
{
    const std::optional<EditableLabel> present = presentLabel();
    if (!present)
        return;
    // The text of the beginning stays for the step at the end.
    const QString before = m_label.text;
    m_label = *present;
    m_label.text = before;
    // Nothing is typed by it.
    const QSignalBlocker blocker(this);
    m_look = look;
    showLetters();
    takePlace();
}

LabelEditor::~LabelEditor()
{
    releaseObject();
}

/// Gives the object its grips back.
void LabelEditor::releaseObject()
{
    if (m_object)
        pagehost::setBeingWritten(*m_object, false);
}

/// Around the whole object.
QRect LabelEditor::frameInView() const
{
    return m_view->mapFromScene(m_object->mapToScene(m_object->getClientRect())).boundingRect();
}

/// A label of a turned object is written upright, about its middle. Room for a further letter at its end covers
/// nothing. Letters that begin at a corner of their box stand where the object has them.
void LabelEditor::takePlace(double furtherRoom)
{
    const double zoom = std::hypot(m_view->transform().m11(), m_view->transform().m12());
    const QRectF box = m_label.box.adjusted(0, 0, furtherRoom, 0);
    const QPoint middle = m_view->mapFromScene(m_object->mapToScene(box.center()));
    const QSize size = (box.size() * zoom).toSize() + QSize(2 * margin, 2 * margin);
    const QSize least(smallestWidth, font().pixelSize() + 2 * margin + 4);
    QRect place(QPoint(), isAtCorner() ? size : size.expandedTo(least));
    place.moveCenter(middle);
    if (isAtCorner())
        place.setSize(size.expandedTo(least) + QSize(margin, margin));
    setViewportMargins(isAtCorner() ? margin : 0, isAtCorner() ? margin : 0, 0, 0);
    setGeometry(place);
    takePaper();
    placeLines();
    clearMask();
    // The frame of the selection is outside of the margin.
    const QRect drawn = frameInView().adjusted(-margin, -margin, 0, 0).translated(-pos());
    if (furtherRoom > 0 || isAtCorner())
        setMask((QRegion(drawn) | lettersAtCorner()) & rect());
}

/// The view as it is behind the editor, without the letters. An editor may be many times larger than the view.
void LabelEditor::takePaper()
{
    m_paper = QPixmap();
    if (!hideDrawnLetters(true))
        return;
    const QRect seen = geometry() & m_view->viewport()->rect();
    if (!seen.isEmpty()) {
        m_paper = QPixmap(seen.size() * devicePixelRatioF());
        m_paper.setDevicePixelRatio(devicePixelRatioF());
        m_paperCorner = seen.topLeft() - pos();
        QPainter painter(&m_paper);
        painter.setRenderHints(m_view->renderHints());
        m_view->render(&painter, QRectF(QPointF(0, 0), seen.size()), seen);
    }
    hideDrawnLetters(false);
}

bool LabelEditor::hideDrawnLetters(bool areHidden)
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << (areHidden ? m_label.propertyId : 0);
    QDataStream in(bytes);
    return m_object->SetSpecialProperty(pagehost::HiddenLabel, in, false);
}

/// Below the margin, too, where letters of the object may reach.
void LabelEditor::paintPaper()
{
    QPainter painter(this);
    if (m_paper.isNull())
        painter.fillRect(rect(), QColor(m_label.color.lightness() > lightLetters ? darkPaper : lightPaper));
    else
        painter.drawPixmap(m_paperCorner, m_paper);
}

/// Lines stand in the box as the object aligns them; on plain paper they begin at the top.
void LabelEditor::placeLines()
{
    if (isAtCorner() || m_paper.isNull())
        return;
    const int room = std::max(0, height() - 2 * margin - qCeil(document()->size().height()));
    const int above = m_label.alignment & Qt::AlignBottom ? room : m_label.alignment & Qt::AlignTop ? 0 : room / 2;
    setViewportMargins(margin, margin + above, margin, 0);
}

bool LabelEditor::isAtCorner() const
{
    return (m_label.alignment & Qt::AlignLeft) && (m_label.alignment & Qt::AlignTop);
}

/// On the screen, letters may be a little larger than their box.
QRect LabelEditor::lettersAtCorner() const
{
    if (viewportMargins().isNull())
        return {};
    const QSizeF size(document()->idealWidth() + cursorWidth(), document()->size().height());
    return {viewport()->pos(), size.toSize()};
}

CBaseObject *LabelEditor::object() const
{
    return m_isFinished ? nullptr : m_object.data();
}

std::optional<EditableLabel> LabelEditor::presentLabel() const
{
    const QVector<EditableLabel> labels = object() ? labelsOf(*m_object) : QVector<EditableLabel>();
    const auto present = std::find_if(labels.begin(), labels.end(), [this](const EditableLabel &label) {
        return label.propertyId == m_label.propertyId;
    });
    return present == labels.end() ? std::nullopt : std::optional<EditableLabel>(*present);
}

/// The box of a text that is as large as its letters grows with them. A letter more than there are has room, so
/// that no line is broken where the label doesn't break it.
void LabelEditor::followLabel()
{
    const std::optional<EditableLabel> present = presentLabel();
    if (present && present->fontSize != m_label.fontSize) {
        m_label.fontSize = present->fontSize;
        const QSignalBlocker blocker(this);
        showLetters();
    }
    placeLines();
    if (!present || present->box.size() == m_label.box.size())
        return;
    const bool isWider = present->box.width() != m_label.box.width();
    m_label.box = present->box;
    takePlace(isWider ? m_label.fontSize : 0);
}

void LabelEditor::type(const QString &text, bool record)
{
    if (!m_object || m_isFinished)
        return;
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << m_label.propertyId << text;
    QDataStream in(bytes);
    m_object->SetSpecialProperty(pagehost::LabelText, in, record);
}

void LabelEditor::finish()
{
    if (m_isFinished)
        return;
    const bool hasChanged = toPlainText() != m_label.text || linksIn(*document()) != m_linksBefore;
    const bool makesStep = m_object && !m_isNewObject && hasChanged;
    if (makesStep)
        setForGood();
    m_isFinished = true;
    releaseObject();
    if (m_linkField) {
        m_linkField->removeEventFilter(this);
        m_linkField->hide();
        m_linkField->deleteLater();
    }
    hide();
    deleteLater();
    Q_EMIT finished(m_object, makesStep);
}

/// One step from the text and the links of the beginning to the present ones.
void LabelEditor::setForGood()
{
    const QString text = toPlainText();
    const QVector<pagehost::TextLink> links = linksIn(*document());
    type(m_label.text, false);
    sendLinks(m_linksBefore, false);
    const auto set = [this](qint32 id, const auto &value) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << value;
        QDataStream in(&bytes, QIODevice::ReadWrite);
        m_object->SetAttribute(id, in, false);
    };
    const bool changesBoth = text != m_label.text && links != m_linksBefore;
    const auto described = changesBoth ? pagehost::attributeOf(m_object, m_label.propertyId) : std::nullopt;
    if (changesBoth)
        GetFramework()->beginUndoGroup(described ? described->nameKey : QString());
    if (text != m_label.text)
        set(m_label.propertyId, text);
    if (links != m_linksBefore)
        set(m_linksId, pagehost::encodedLinks(links));
    if (changesBoth)
        GetFramework()->endUndoGroup();
}

void LabelEditor::sendLinks(const QVector<pagehost::TextLink> &links, bool record)
{
    if (!m_object || m_isFinished || !mayHaveLinks())
        return;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << m_label.propertyId << pagehost::encodedLinks(links);
    QDataStream in(bytes);
    m_object->SetSpecialProperty(pagehost::LabelLinks, in, record);
}

/// In a field below the letters: the return key makes the link, without an address none; Esc leaves it as it is.
void LabelEditor::askForLink()
{
    if (m_linkField)
        return;
    QTextCursor cursor = textCursor();
    selectLink(cursor);
    setTextCursor(cursor);
    QTextCursor first(document());
    first.setPosition(cursor.selectionStart() + (cursor.hasSelection() ? 1 : 0));
    m_linkField = new QLineEdit(first.charFormat().anchorHref(), parentWidget());
    m_linkField->setObjectName(QStringLiteral("linkAddress"));
    m_linkField->setPlaceholderText(QStringLiteral("https://"));
    m_linkField->setAccessibleName(QStringLiteral("https://"));
    m_linkField->installEventFilter(this);
    m_linkField->setGeometry(x(), geometry().bottom() + margin, std::max(width(), linkFieldWidth),
                             m_linkField->sizeHint().height());
    connect(m_linkField, &QLineEdit::returnPressed, this, &LabelEditor::takeLink);
    m_linkField->show();
    m_linkField->setFocus(Qt::PopupFocusReason);
    m_linkField->selectAll();
}

void LabelEditor::takeLink()
{
    const QString typed = m_linkField->text().trimmed();
    const QString address = linkAddress(typed);
    // An address that nothing may open stays in the field.
    if (address.isEmpty() && !typed.isEmpty()) {
        m_linkField->selectAll();
        return;
    }
    setLink(textCursor(), address);
    closeLinkField();
}

void LabelEditor::closeLinkField()
{
    m_linkField->removeEventFilter(this);
    m_linkField->hide();
    m_linkField->deleteLater();
    m_linkField.clear();
    setFocus();
}

bool LabelEditor::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_linkField)
        return QTextEdit::eventFilter(watched, event);
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent *>(event)->key() == Qt::Key_Escape;
    if (isEscape)
        closeLinkField();
    else if (event->type() == QEvent::FocusOut &&
             static_cast<QFocusEvent *>(event)->reason() != Qt::ActiveWindowFocusReason)
        finish();
    return isEscape;
}

/// Ctrl+K is a command of the window elsewhere.
bool LabelEditor::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && mayHaveLinks() && isLinkKey(*static_cast<QKeyEvent *>(event)))
        event->accept();
    if (event->type() == QEvent::Paint)
        paintPaper();
    return QTextEdit::event(event);
}

void LabelEditor::mouseReleaseEvent(QMouseEvent *event)
{
    const QString address = event->modifiers() & Qt::ControlModifier ? anchorAt(event->pos()) : QString();
    QTextEdit::mouseReleaseEvent(event);
    if (!address.isEmpty() && event->button() == Qt::LeftButton)
        openLink(address);
}

void LabelEditor::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool ends = isReturn && (!m_label.hasManyLines || (event->modifiers() & Qt::ControlModifier));
    if (event->key() == Qt::Key_Escape || ends) {
        event->accept();
        finish();
        return;
    }
    if (mayHaveLinks() && isLinkKey(*event))
        return askForLink();
    if (event->key() == Qt::Key_V && event->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier))
        return pastePlain();
    if (m_label.hasManyLines && editList(*event))
        return;
    QTextEdit::keyPressEvent(event);
    const bool isTyped = !event->text().isEmpty() && event->text().at(0).isPrint();
    if (isTyped && !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier)))
        raiseOrLower(textCursor());
}

void LabelEditor::pastePlain()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data || !canInsertFromMimeData(data))
        return;
    insertPlainText(data->hasText() ? data->text() : textOf(*data));
    ensureCursorVisible();
}

void LabelEditor::toggleList()
{
    changeList(textCursor());
}

bool LabelEditor::editList(const QKeyEvent &event)
{
    if (event.modifiers() == (Qt::ControlModifier | Qt::ShiftModifier) && event.key() == Qt::Key_L) {
        toggleList();
        return true;
    }
    QTextCursor cursor = textCursor();
    bool isEdited = false;
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        isEdited = !(event.modifiers() & Qt::ShiftModifier) && continueList(cursor);
    else if (event.key() == Qt::Key_Space)
        isEdited = beginList(cursor);
    if (isEdited)
        setTextCursor(cursor);
    return isEdited;
}

bool LabelEditor::canInsertFromMimeData(const QMimeData *source) const
{
    return source->hasText() || source->hasHtml();
}

void LabelEditor::insertFromMimeData(const QMimeData *source)
{
    insertPlainText(textOf(*source));
    ensureCursorVisible();
}

void LabelEditor::focusOutEvent(QFocusEvent *event)
{
    QTextEdit::focusOutEvent(event);
    // A menu of the editor, or another window, is no end.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        finish();
}

} // namespace board
