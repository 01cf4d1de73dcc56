#include <shapekit/lettercontrol.h>

namespace shapekit {

namespace {

QString nameOf(LetterPart part)
{
    switch (part) {
    case LetterPart::Text:
        return QStringLiteral("text");
    case LetterPart::Font:
        return QStringLiteral("font");
    case LetterPart::Size:
        return QStringLiteral("size");
    case LetterPart::Bold:
        return QStringLiteral("bold");
    case LetterPart::Italic:
        return QStringLiteral("italic");
    case LetterPart::Underlined:
        return QStringLiteral("underlined");
    case LetterPart::Colour:
        return QStringLiteral("colour");
    case LetterPart::Alignment:
        return QStringLiteral("alignment");
    case LetterPart::List:
        return QStringLiteral("list");
    case LetterPart::Width:
        break;
    }
    return QStringLiteral("width");
}

} // namespace

QJsonObject letterControl(QJsonObject control, LetterPart part)
{
    control[QStringLiteral("section")] = QStringLiteral("text");
    control[QStringLiteral("role")] = nameOf(part);
    return control;
}

} // namespace shapekit
