#include "tree/reader.h"

#include "grammar/inputlimits.h"
#include "tree/gunzip.h"
#include "tree/plainxml.h"
#include "tree/streamxml.h"
#include "tree/treebuilder.h"

namespace Svg {

namespace {

bool readUncompressed(const QByteArray &text, Tree *tree, Messages *messages)
{
    if (isTextTooLong(text, messages))
        return false;
    Tree plainTree = *tree;
    Messages plainMessages = *messages;
    TreeBuilder builder(&plainTree, &plainMessages);
    if (!readPlainXml(QString::fromUtf8(text.constData(), text.size()), &builder))
        return readStreamedXml(text, tree, messages);
    *tree = plainTree;
    *messages = plainMessages;
    return true;
}

} // namespace

bool readTree(const QByteArray &text, Tree *tree, Messages *messages)
{
    if (!isGzip(text))
        return readUncompressed(text, tree, messages);
    const std::optional<QByteArray> plain = gunzip(text, Limits::textBytes);
    if (plain)
        return readUncompressed(*plain, tree, messages);
    const QString why = QStringLiteral("The compressed text is damaged or holds more than %1 bytes.");
    messages->fail(Message::DamagedCompression, why.arg(Limits::textBytes), 0, 0);
    return false;
}

} // namespace Svg
