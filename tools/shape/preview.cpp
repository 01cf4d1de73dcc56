// gliololok-shape preview: a shape in a window, or drawn into a picture.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/findings.h"
#include "shape/previewwindow.h"
#include "shape/shapepicture.h"

#include <checklist/subject.h>

#include <QtWidgets/QApplication>

namespace shapetool {

namespace {

int save(const QImage &picture, const QString &path)
{
    return picture.save(path, "PNG") ? int(Fine) : complain(QStringLiteral("%1 can't be written").arg(path));
}

int drawPictures(const Subject &subject, const QString &png, const QString &sheet)
{
    int result = Fine;
    if (!png.isEmpty())
        result = save(pictureOf(subject), png);
    if (!sheet.isEmpty() && result == Fine)
        result = save(sheetOf(subject), sheet);
    return result;
}

int showWindow(const QString &path)
{
    PreviewWindow window(path);
    window.show();
    return QApplication::exec();
}

} // namespace

int runPreview(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Shows a shape in a window: the shape with the ranges of its control points, its settings, "
                       "undo steps and saved\n"
                       "state. The window reloads the file when it is saved. With --png or --sheet there is no "
                       "window.\n\nExit code: 0 shown "
                       "or drawn, 1 the file has errors, 2 it can't be read or the picture can't be written."));
    const QCommandLineOption png(QStringLiteral("png"), QStringLiteral("Draw the shape into a picture."),
                                 QStringLiteral("OUT"));
    const QCommandLineOption sheet(
        QStringLiteral("sheet"),
        QStringLiteral("Draw a sheet of sizes, mirrored forms, and extremes of its points."),
        QStringLiteral("OUT"));
    parser.addOptions({png, sheet});
    parser.addPositionalArgument(QStringLiteral("FILE"), QStringLiteral("A declared shape or a plug-in."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    if (parser.positionalArguments().size() != 1)
        return complain(QStringLiteral("preview needs one file; --help tells more."));
    const QString path = parser.positionalArguments().constFirst();
    if (!parser.isSet(png) && !parser.isSet(sheet))
        return showWindow(path);
    const Subjects subjects(path);
    if (!subjects.problem().isEmpty())
        return complain(subjects.problem());
    if (subjects.all().isEmpty()) {
        print(subjects.faults(), false);
        return Findings;
    }
    return drawPictures(subjects.all().first(), parser.value(png), parser.value(sheet));
}

} // namespace shapetool
