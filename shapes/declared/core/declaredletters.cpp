// The look that all repeated labels of a declared shape have together, as panels, undo steps and lessons set it.

#include <declared/core/declaredshape.h>

#include <shapekit/lettercontrol.h>

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>

namespace declared {

/// Undo and lessons, which neither record nor add steps, give back exactly what there was.
bool DeclaredShape::setLetters(LetterStyle::Part part, QDataStream &in, bool record, bool addUndo)
{
    const int id = LetterStyle::idOf(part);
    const QByteArray before = m_labels.letters().bytes(part);
    LetterStyle letters = m_labels.letters();
    letters.read(part, in);
    if (record || addUndo)
        letters.dropGivenColour(getPenColor());
    const QByteArray after = letters.bytes(part);
    if (addUndo) {
        auto *command = new CSVGBaseUndoCmd(this, id, nullptr, true);
        command->setDataBuffer(before, after);
        addUndoRedo(command);
    }
    if (record)
        RecordDataBuffer(after, id);
    m_labels.setLetters(letters);
    propertyChanged(nullptr);
    return true;
}

void DeclaredShape::addLetterControls(QJsonArray &settings)
{
    for (const LetterStyle::Part part : LetterStyle::parts) {
        if (!m_labels.letters().partOf(LetterStyle::idOf(part)))
            continue;
        const QString title = LetterStyle::titleOf(part, m_kind.letterTitles()).key(&m_kind.kind());
        settings.append(shapekit::letterControl(m_labels.letters().control(part, *owner, title, getPenColor()),
                                                LetterStyle::roleOf(part)));
    }
}

bool DeclaredShape::SetSettingArray(QMap<QString, QString> &values, bool record, bool undo)
{
    Shape::SetSettingArray(values, record, undo);
    for (const LetterStyle::Part part : LetterStyle::parts) {
        const int id = LetterStyle::idOf(part);
        const QString answer = values.value(LetterStyle::controlId(part));
        const bool isAnswered = m_labels.letters().partOf(id) && !answer.isNull();
        const QByteArray value = isAnswered ? m_labels.letters().bytesOfAnswer(part, answer) : QByteArray();
        QDataStream in(value);
        if (!value.isEmpty())
            SetAttribute(id, in, record, undo);
    }
    return true;
}

void DeclaredShape::initSpecialPropItems()
{
    Shape::initSpecialPropItems();
    for (const LetterStyle::Part part : LetterStyle::parts) {
        const int id = LetterStyle::idOf(part);
        QByteArray editor = LetterStyle::editor(part);
        if (m_labels.letters().partOf(id))
            propItems.append(new CSVGPropItem(id, getPropName(id), id, LetterStyle::dataType(part), &editor, true));
    }
}

QString DeclaredShape::getPropName(int propId)
{
    const auto part = m_labels.letters().partOf(propId);
    return part ? LetterStyle::titleOf(*part, m_kind.letterTitles()).key(&m_kind.kind())
                : Shape::getPropName(propId);
}

} // namespace declared
