// Draws an SVG file into a PNG file, for people and tests.

#include <shapekit/attributeplaces.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QBuffer>
#include <QtCore/QCommandLineParser>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QSaveFile>
#include <QtGui/QGuiApplication>
#include <QtGui/QImage>
#include <QtGui/QPainter>

#include <cstdio>
#include <memory>
#include <optional>

namespace {

enum ExitCode {
    Drawn = 0,
    /// Wrong arguments, or a file that can't be read or written.
    NotAsked = 1,
    Refused = 2
};

constexpr int longestSide = 32767;
/// Bytes of a file. The library accepts no longer text; an endless input must not fill the memory first.
constexpr int mostBytes = 16 * 1024 * 1024;
constexpr double millisecondsPerSecond = 1000;

using Messages = QVector<QZeSvgTinyDocument::Message>;

struct Request
{
    QString input;
    QString output;
    QSize size;
    /// Moment of the animation, seconds; none for the document as it stands.
    std::optional<double> time;
};

// Suppresses Qt's messages about its environment; only those about the document are of interest.
void keepQuiet(QtMsgType type, const QMessageLogContext &, const QString &text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg)
        fprintf(stderr, "svgdraw: %s\n", qPrintable(text));
}

int complain(const QString &text)
{
    fprintf(stderr, "svgdraw: %s\n", qPrintable(text));
    return NotAsked;
}

/// Compressed text has no places that anybody sees.
void print(const QString &file, const QByteArray &text, const Messages &messages)
{
    const shapekit::AttributePlaces attributes(messages.isEmpty() ? QString() : QString::fromUtf8(text));
    for (const QZeSvgTinyDocument::Message &message : messages) {
        const bool error = message.severity == QZeSvgTinyDocument::Message::Error;
        const shapekit::TextPlace end{message.line, message.column};
        const shapekit::TextPlace place = error ? end : attributes.of(message).value_or(end);
        fprintf(stderr, "%s:%lld:%lld: %s: %s\n", qPrintable(file), place.line, place.column,
                error ? "error" : "warning", qPrintable(message.text));
    }
}

/// Null when out of memory.
QImage picture(QZeSvgTinyDocument &document, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return image;
    image.fill(Qt::transparent);
    QPainter painter(&image);
    document.drawFitted(&painter, image.rect());
    return image;
}

/// Reads at most one byte more than the library accepts. A pipe delivers its contents piece by piece.
QByteArray contents(QFile &file)
{
    QByteArray bytes;
    while (bytes.size() <= mostBytes) {
        const QByteArray piece = file.read(mostBytes + 1 - bytes.size());
        if (piece.isEmpty())
            break;
        bytes += piece;
    }
    return bytes;
}

/// Empty when everything was written.
QString problemOfWriting(QFileDevice &file, const QByteArray &bytes)
{
    if (!file.open(QIODevice::WriteOnly))
        return file.errorString();
    const bool taken = file.write(bytes) == bytes.size() && file.flush();
    return taken ? QString() : QStringLiteral("not all of it was taken; is the disk full?");
}

/// Writes the whole picture, or prints a message and leaves the old file. Devices and pipes are written in place.
int write(const QImage &picture, const QString &path)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    picture.save(&buffer, "PNG");
    const QFileInfo present(path);
    QString problem;
    if (present.exists() && !present.isFile() && !present.isDir()) {
        QFile file(path);
        problem = problemOfWriting(file, bytes);
    } else {
        QSaveFile file(path);
        problem = problemOfWriting(file, bytes);
        if (problem.isEmpty() && !file.commit())
            problem = file.errorString();
    }
    return problem.isEmpty() ? int(Drawn) : complain(QStringLiteral("%1 can't be written: %2").arg(path, problem));
}

int drawFile(const Request &request)
{
    QFile file(request.input);
    if (!file.open(QIODevice::ReadOnly))
        return complain(QStringLiteral("%1 can't be read: %2").arg(request.input, file.errorString()));
    Messages messages;
    const QByteArray text = contents(file);
    std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(text, &messages));
    if (!document) {
        print(request.input, text, messages);
        return Refused;
    }
    if (request.time)
        document->setAnimationTime(*request.time);
    const QImage drawing = picture(*document, request.size);
    messages = document->messages();
    // Places of messages need memory, too.
    document.reset();
    print(request.input, text, messages);
    if (drawing.isNull())
        return complain(QStringLiteral("There is not enough memory for a picture of %1 by %2 pixels.")
                            .arg(request.size.width())
                            .arg(request.size.height()));
    return write(drawing, request.output);
}

int side(const QString &text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    return ok && value <= longestSide ? value : 0;
}

void describe(QCommandLineParser *parser)
{
    parser->setApplicationDescription(QStringLiteral(
        "Draws an SVG file (plain or gzip), fitted by its own preserveAspectRatio, into a transparent "
        "PNG of the given size.\n\nMessages go to the standard error output, one per line, as "
        "file:line:column: severity: text.\n\nExit code: 0 drawn, 2 the file was refused, 1 wrong "
        "arguments or a file that can't be read or written."));
    // Arguments after the file may begin with a minus, as a time does.
    parser->setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsPositionalArguments);
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addPositionalArgument(QStringLiteral("in.svg"), QStringLiteral("The file to draw."));
    parser->addPositionalArgument(QStringLiteral("out.png"), QStringLiteral("The picture to write."));
    parser->addPositionalArgument(QStringLiteral("WIDTH"), QStringLiteral("Width of the picture, pixels."));
    parser->addPositionalArgument(QStringLiteral("HEIGHT"), QStringLiteral("Height of the picture, pixels."));
    parser->addPositionalArgument(
        QStringLiteral("TIME_MS"),
        QStringLiteral("Moment of its animation to draw, milliseconds; without it nothing "
                       "is animated."),
        QStringLiteral("[TIME_MS]"));
}

} // namespace

int main(int argc, char **argv)
{
    // Drawing needs fonts but no display.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(keepQuiet);
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(SVGDRAW_VERSION));
    QCommandLineParser parser;
    describe(&parser);
    if (!parser.parse(application.arguments()))
        return complain(parser.errorText());
    if (parser.isSet(QStringLiteral("help")))
        parser.showHelp(Drawn);
    if (parser.isSet(QStringLiteral("version")))
        parser.showVersion();
    const QStringList arguments = parser.positionalArguments();
    if (arguments.size() != 4 && arguments.size() != 5)
        return complain(QStringLiteral("Four or five arguments are needed; --help tells which."));
    const QSize size(side(arguments.at(2)), side(arguments.at(3)));
    if (size.width() < 1 || size.height() < 1)
        return complain(QStringLiteral("Width and height are whole numbers from 1 to %1.").arg(longestSide));
    Request request{arguments.at(0), arguments.at(1), size, std::nullopt};
    if (arguments.size() == 5) {
        bool ok = false;
        request.time = arguments.at(4).toDouble(&ok) / millisecondsPerSecond;
        if (!ok || !qIsFinite(*request.time))
            return complain(QStringLiteral("The time is a number of milliseconds."));
    }
    return drawFile(request);
}
