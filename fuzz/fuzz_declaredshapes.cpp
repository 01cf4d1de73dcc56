// Files that declare a shape: each is read, or refused with a message that has a place; what is read has a template
// that is well formed.

#include "grammarinput.h"

#include <declared/reader/shapereader.h>

#include <QtCore/QXmlStreamReader>

using namespace declared;

namespace {

bool isWellFormed(const QByteArray &text)
{
    QXmlStreamReader reader(text);
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QVector<Message> messages;
    const SharedDeclaration declaration = readShape(bytes, QStringLiteral("fuzzed"), &messages);
    bool isFaulty = false;
    for (const Message &message : qAsConst(messages)) {
        isFaulty = isFaulty || message.severity == Message::Error;
        require(message.line >= 1 && message.column >= 1, "a message has a place");
        require(message.code.size() == 3 && !message.text.isEmpty(), "a message has a code and a text");
    }
    require(isFaulty == !declaration, "a file is refused with a reason, and for no other");
    require(!declaration || isWellFormed(declaration->templateText), "a template is well formed");
    return 0;
}
