#pragma once

#include <pagehost/textlinks.h>

#include <QtCore/QVector>

class CBaseObject;
class QTextCursor;
class QTextDocument;

namespace board {

// Links in texts without other formats: anchors of the document that is edited.

/// Whether a label of an object may have links, and those that it has.
struct LabelLinkState
{
    qint32 propertyId = 0; ///< of the links; 0 where the label has none
    QVector<pagehost::TextLink> links;
};
LabelLinkState linksOf(CBaseObject &object, qint32 label);

void showLinks(QTextDocument &document, const QVector<pagehost::TextLink> &links);
QVector<pagehost::TextLink> linksIn(const QTextDocument &document);
/// Without a selection, selects the link at the cursor.
void selectLink(QTextCursor &cursor);
/// Gives the selected letters a link, or takes it from them where the address is empty. Without a selection the
/// address is inserted.
void setLink(QTextCursor cursor, const QString &address);
/// Whether letters typed at the cursor would continue the link before it.
bool isBehindLink(const QTextCursor &cursor);

} // namespace board
