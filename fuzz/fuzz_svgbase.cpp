// Loads a text, changes the document in ways that the text chooses, and draws it before and after.

#include <svgbase/qzesvgtinydocument.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <memory>

namespace {

void draw(QZeSvgTinyDocument &document, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    document.draw(&painter, QRectF(QPointF(), QSizeF(size)), 1, true);
}

/// Applies the changes encoded in the bytes at the end of the text, so that a corpus can reach every operation.
void change(QZeSvgTinyDocument &document, const QByteArray &script)
{
    static const char *const attributes[] = {"x",    "width", "rx",     "d",    "transform",
                                             "fill", "style", "points", "href", "id"};
    static const char *const values[] = {"10",       "-3e8",      "1e999", "url(#a)", "none",
                                         "M0 0L9 9", "rotate(9)", "50%",   "#b",      ""};
    for (const char byte : script) {
        const auto code = static_cast<unsigned char>(byte);
        const QList<QZeSvgNode *> children = document.children();
        if (children.isEmpty())
            return;
        QZeSvgNode *node = children.at(code % children.size());
        if (code < 150)
            node->setAttribute(QString::fromLatin1(attributes[code % 10]), QString::fromLatin1(values[code / 15]));
        else if (code < 200)
            node->setNumericAttribute(QString::fromLatin1(attributes[code % 3]), code - 175.0);
        else if (code < 220)
            document.addChild(node->clone(), QStringLiteral("a"));
        else if (code < 240)
            document.removeChild(node);
        else
            document.setAllStrokeWidth(code - 245.0);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int count = 1;
    static char name[] = "fuzz_svgbase";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(count, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    constexpr int longestScript = 16;
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    const int end = input.lastIndexOf('>') + 1;
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(input.left(end)));
    if (!document)
        return 0;
    document->setSelectionState(1);
    draw(*document, QSize(40, 30));
    document->setAnimationTime(input.size() % 7 * 0.75);
    draw(*document, QSize(40, 30));
    change(*document, input.mid(end, longestScript));
    document->transformedBounds();
    document->setAllFillBrush(QColor(Qt::red));
    draw(*document, QSize(30, 30));
    document->setAnimationTime(0.5);
    draw(*document, QSize(30, 30));
    return 0;
}
