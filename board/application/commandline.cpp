#include "application/commandline.h"

#include "application/screenshot.h"
#include "application/shapefile.h"
#include "core/texts.h"

#include <QtCore/QCommandLineParser>
#include <QtCore/QFileInfo>

#include <cmath>
#include <optional>

namespace board {

namespace {

constexpr double smallestScale = 0.05;
constexpr double largestScale = 16;
constexpr int smallestThumbnail = 16;
constexpr int largestThumbnail = 4096;

/// "en or de".
QString languageChoice()
{
    return boardLanguages().join(QStringLiteral(" or "));
}

std::optional<PageFormat> formatOf(const QString &name)
{
    for (const PageFormat format : {PageFormat::Png, PageFormat::Svg, PageFormat::Pdf})
        if (name == suffixOf(format))
            return format;
    return {};
}

struct Parser
{
    QCommandLineParser parser;
    QCommandLineOption plugins{"plugins", "Also load the shape plug-ins in <folder>. May be given more than once.",
                               "folder"};
    QCommandLineOption shapes{"shapes",
                              "Also look for shapes (NAME.shape.svg) in <folder>, before all others. May be "
                              "given more than once.",
                              "folder"};
    QCommandLineOption exportPages{"export",
                                   "Write the pages of the file, else of --demo, as pictures into <folder>, print "
                                   "their paths and stop. Replaces page-1.png, page-2.png ... that are there, "
                                   "with --format pdf pages.pdf. Needs no display.",
                                   "folder"};
    QCommandLineOption format{"format", "Format of exported pages: png, svg or pdf (png without this option).",
                              "format", "png"};
    QCommandLineOption scale{"scale", "Pixels per page unit of exported pages, 0.05 to 16 (1 without this option).",
                             "factor", "1"};
    QCommandLineOption thumbnail{
        "thumbnail",
        "Write a picture of the first page of the file to <picture>, as PNG, and stop. Needs "
        "no display.",
        "picture"};
    QCommandLineOption thumbnailSize{
        "thumbnail-size", "Pixels of the longer side of a thumbnail, 16 to 4096 (256 without this option).",
        "pixels", "256"};
    QCommandLineOption play{"play", "Play the lesson of the file; with --export, write the pages as it leaves them "
                                    "(several lessons: a folder for each)."};
    QCommandLineOption present{"present", "Present the file, else --demo, over the whole screen."};
    QCommandLineOption demo{"demo", "Open with pages that show every shape there is."};
    QCommandLineOption language{
        "language", QStringLiteral("Language of the user interface: %1.").arg(languageChoice()), "code"};
    QCommandLineOption dark{"dark", "Use dark colours."};
    QCommandLineOption screenshot{"screenshot", "Write a picture of the window to <file> and stop.", "file"};
    QCommandLineOption state{"screenshot-state", "What the picture shows.", "state", "shapes"};
    QCommandLineOption help;
    QCommandLineOption version;

    Parser()
        : help(parser.addHelpOption())
        , version(parser.addVersionOption())
    {
        parser.setApplicationDescription("A board to draw and teach on: shapes that you reshape by hand.");
        parser.addPositionalArgument("file", "The board to open, or a shape (NAME.shape.svg) to try.", "[file]");
        screenshot.setFlags(QCommandLineOption::HiddenFromHelp);
        state.setFlags(QCommandLineOption::HiddenFromHelp);
        parser.addOptions({plugins, shapes, exportPages, format, scale, thumbnail, thumbnailSize, play, present,
                           demo, language, dark, screenshot, state});
    }
};

Options textResult(const QString &message, bool failed)
{
    Options options;
    options.action = Options::ShowText;
    options.message = message;
    options.failed = failed;
    return options;
}

Options refusal(const QString &problem)
{
    return textResult(problem + QStringLiteral("\nTry --help.\n"), true);
}

/// The first argument that makes no sense, as a sentence; empty when all do.
QString problemOf(const Parser &p)
{
    if (p.parser.positionalArguments().size() > 1)
        return QStringLiteral("There is nothing to do with \"%1\".").arg(p.parser.positionalArguments().at(1));
    bool isNumber = false;
    const double scale = p.parser.value(p.scale).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(scale) || scale < smallestScale || scale > largestScale)
        return QStringLiteral("--scale takes a number from 0.05 to 16, not \"%1\".").arg(p.parser.value(p.scale));
    const QString language = p.parser.value(p.language);
    if (p.parser.isSet(p.language) && !boardLanguages().contains(language))
        return QStringLiteral("--language takes %1, not \"%2\".").arg(languageChoice(), language);
    if (p.parser.isSet(p.exportPages) && p.parser.value(p.exportPages).isEmpty())
        return QStringLiteral("--export takes the folder to write to.");
    if (p.parser.isSet(p.play) && p.parser.positionalArguments().isEmpty())
        return QStringLiteral("--play takes the file with the lesson.");
    const int pixels = p.parser.value(p.thumbnailSize).toInt();
    if (pixels < smallestThumbnail || pixels > largestThumbnail)
        return QStringLiteral("--thumbnail-size takes a whole number from 16 to 4096, not \"%1\".")
            .arg(p.parser.value(p.thumbnailSize));
    if (p.parser.isSet(p.thumbnail) && p.parser.positionalArguments().isEmpty())
        return QStringLiteral("--thumbnail takes the file to picture as well.");
    const QString format = p.parser.value(p.format);
    if (!formatOf(format))
        return QStringLiteral("--format takes png, svg or pdf, not \"%1\".").arg(format);
    if (!screenshotStates().contains(p.parser.value(p.state)))
        return QStringLiteral("--screenshot-state takes one of: %1.").arg(screenshotStates().join(", "));
    return {};
}

Options::Action actionOf(const Parser &p)
{
    if (p.parser.isSet(p.exportPages))
        return Options::ExportPages;
    if (p.parser.isSet(p.thumbnail))
        return Options::WriteThumbnail;
    return p.parser.isSet(p.screenshot) ? Options::TakeScreenshot : Options::OpenWindow;
}

Options optionsOf(const Parser &p)
{
    Options options;
    options.action = actionOf(p);
    options.pluginFolders = p.parser.values(p.plugins);
    options.shapeFolders = p.parser.values(p.shapes);
    options.file = p.parser.positionalArguments().value(0);
    // Its kind is looked for as any other.
    if (isShapeFile(options.file))
        options.shapeFolders.prepend(QFileInfo(options.file).absolutePath());
    options.format = *formatOf(p.parser.value(p.format));
    options.exportFolder = p.parser.value(p.exportPages);
    options.scale = p.parser.value(p.scale).toDouble();
    options.thumbnailFile = p.parser.value(p.thumbnail);
    options.thumbnailSize = p.parser.value(p.thumbnailSize).toInt();
    options.screenshotFile = p.parser.value(p.screenshot);
    options.screenshotState = p.parser.value(p.state);
    options.play = p.parser.isSet(p.play);
    options.present = p.parser.isSet(p.present);
    options.demo = p.parser.isSet(p.demo);
    options.dark = p.parser.isSet(p.dark);
    options.language = p.parser.value(p.language);
    return options;
}

} // namespace

Options parseCommandLine(const QStringList &arguments)
{
    Parser p;
    if (!p.parser.parse(arguments))
        return refusal(p.parser.errorText());
    if (p.parser.isSet(p.help))
        return textResult(p.parser.helpText(), false);
    if (p.parser.isSet(p.version))
        return textResult(QStringLiteral("gliololok-board %1\n").arg(BOARD_VERSION), false);
    const QString problem = problemOf(p);
    return problem.isEmpty() ? optionsOf(p) : refusal(problem);
}

} // namespace board
