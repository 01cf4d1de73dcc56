#include "page/listediting.h"

#include <pagehost/listmark.h>

#include <QtCore/QMimeData>
#include <QtGui/QTextBlock>
#include <QtGui/QTextCursor>
#include <QtGui/QTextDocument>
#include <QtGui/QTextList>

namespace board {

namespace {

using pagehost::listMark;

QString bulletMark()
{
    return QChar(pagehost::listBullet) + QStringLiteral(" ");
}

QString numberMark(int number)
{
    return QStringLiteral("%1. ").arg(number);
}

/// 0 for a mark that is no number.
int numberOf(const QString &mark)
{
    return mark.leftRef(mark.indexOf(QLatin1Char('.'))).toInt();
}

QString markAfter(const QString &mark)
{
    const int number = numberOf(mark);
    return number > 0 ? numberMark(number + 1) : mark;
}

void setMark(const QTextBlock &block, const QString &mark)
{
    QTextCursor cursor(block);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor, listMark(block.text()).size());
    cursor.insertText(mark);
}

/// Numbers the items that follow an item.
void renumber(QTextBlock block)
{
    int number = numberOf(listMark(block.text()));
    if (number == 0)
        return;
    for (block = block.next(); numberOf(listMark(block.text())) > 0; block = block.next())
        setMark(block, numberMark(++number));
}

QString lineOf(const QTextBlock &block)
{
    QString line = block.text();
    line.remove(QChar::ObjectReplacementCharacter);
    line.replace(QChar::Nbsp, QLatin1Char(' ')).replace(QChar::LineSeparator, QLatin1Char('\n'));
    const QTextList *list = block.textList();
    if (!list)
        return line;
    const bool isNumbered = list->format().style() <= QTextListFormat::ListDecimal;
    return (isNumbered ? numberMark(list->itemNumber(block) + 1) : bulletMark()) + line;
}

} // namespace

bool continueList(QTextCursor &cursor)
{
    const QString line = cursor.block().text();
    const QString mark = listMark(line);
    if (mark.isEmpty() || cursor.hasSelection() || cursor.positionInBlock() < mark.size())
        return false;
    cursor.beginEditBlock();
    if (line == mark) {
        setMark(cursor.block(), QString());
    } else {
        cursor.insertText(QLatin1Char('\n') + markAfter(mark));
        renumber(cursor.block());
    }
    cursor.endEditBlock();
    return true;
}

bool beginList(QTextCursor &cursor)
{
    const QString before = cursor.block().text().left(cursor.positionInBlock());
    if (cursor.hasSelection() || (before != QLatin1String("-") && before != QLatin1String("*")))
        return false;
    cursor.movePosition(QTextCursor::StartOfBlock, QTextCursor::KeepAnchor);
    cursor.insertText(bulletMark());
    return true;
}

void changeList(QTextCursor cursor)
{
    const QTextDocument *document = cursor.document();
    const QTextBlock first = document->findBlock(cursor.selectionStart());
    const QTextBlock last = document->findBlock(cursor.selectionEnd());
    const QString present = listMark(first.text());
    const bool becomesNumbered = present == bulletMark();
    int number = 0;
    cursor.beginEditBlock();
    for (QTextBlock block = first; block.isValid() && block.blockNumber() <= last.blockNumber();
         block = block.next())
        setMark(block, becomesNumbered ? numberMark(++number) : present.isEmpty() ? bulletMark() : QString());
    cursor.endEditBlock();
}

QString textOf(const QMimeData &data)
{
    if (!data.hasHtml())
        return data.text();
    QTextDocument document;
    document.setHtml(data.html());
    QStringList lines;
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next())
        lines.append(lineOf(block));
    return lines.join(QLatin1Char('\n'));
}

} // namespace board
