// Data URIs, and the images decoded from them.

#include "grammarinput.h"

#include "document/documentreading.h"
#include "grammar/datauris.h"
#include "grammar/inputlimits.h"
#include "images/images.h"

#include <QtGui/QGuiApplication>

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    static int count = 1;
    static char name[] = "fuzz_datauris";
    static char *arguments[] = {name, nullptr};
    qputenv("QT_QPA_PLATFORM", "offscreen");
    new QGuiApplication(count, arguments);
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {});
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const std::optional<QByteArray> bytes = Svg::parseDataUri(text);
    require(!bytes || bytes->size() <= text.toUtf8().size(), "data is no longer than its text");
    Svg::Problem problem;
    const Svg::ImagePointer image = Svg::readImage(text, Svg::documentReader(), &problem);
    require(image || !problem.text.isEmpty(), "what can't be shown has a reason");
    if (image && !image->document)
        require(image->size.width() * image->size.height() <= Svg::Limits::imagePixels, "an image is bounded");
    return 0;
}
