// gliololok-shape new: a shape to begin with, which passes "check" as it is.

#include "shape/commandline.h"
#include "shape/commands.h"
#include "shape/drawing.h"
#include "shape/textfile.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <cstdio>

namespace shapetool {

namespace {

const char *const declaredStart =
    R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:shape="urn:gliololok:shape" viewBox="0 0 120 80">
    <shape:about name="%NAME%" filled="page"/>
    <path id="figure" fill="#d3e4fd" stroke="#3f63a8" stroke-width="2" stroke-linejoin="round"
          d="M1 79L30 1H90L119 79Z"
          shape:d="M{left} {bottom}L{p1.x} {top}H{w - p1.x}L{right} {bottom}Z"/>
    <rect id="control_1" x="26" y="4" width="8" height="8" fill="none"
          shape:range-x="8 .. w / 2" shape:range-y="8" shape:follow-y="start"/>
</svg>
)";

const char *const projectStart = R"(cmake_minimum_required(VERSION 3.22)
project(%NAME% LANGUAGES CXX)

find_package(gliololok 1 REQUIRED COMPONENTS kit)
gliololok_add_shape(%NAME% template.svg %NAME%.cpp)

enable_testing()
add_test(NAME check COMMAND gliololok-shape check $<TARGET_FILE:%NAME%>)
)";

const char *const templateStart = R"(<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 120 80">
    <path id="figure" fill="#d3e4fd" stroke="#3f63a8" stroke-width="2" stroke-linejoin="round"
          d="M1 79L30 1H90L119 79Z"/>
    <rect id="control_1" x="26" y="4" width="8" height="8" fill="#ffffff" stroke="#e8710a" stroke-width="1.5"
          y_move="0" y_follows="start"/>
</svg>
)";

const char *const sourceStart = R"(#include <shapekit/shape.h>

using namespace shapekit;

namespace {

/// Its control point sets the left end of the upper side; the right one mirrors it.
class %CLASS% : public ShapeOfType<301>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({8, 8}, {width() / 2, 8}); }
    void draw() override
    {
        const QRectF box = frame();
        const double left = point(1).x();
        setPath("figure", PathText().polygon({box.bottomLeft(),
                                              {left, box.top()},
                                              {width() - left, box.top()},
                                              box.bottomRight()}));
    }
};

} // namespace

SHAPEKIT_PLUGIN(%CLASS%, "%CLASS%", "%CLASS%", Basic)
)";

QByteArray filled(const char *text, const QString &name)
{
    QString capital = name;
    capital[0] = capital.at(0).toUpper();
    return QString::fromUtf8(text)
        .replace(QLatin1String("%NAME%"), name)
        .replace(QLatin1String("%CLASS%"), capital)
        .toUtf8();
}

int writeFiles(const QVector<QPair<QString, QByteArray>> &files)
{
    for (const auto &[path, bytes] : files)
        if (QFile::exists(path))
            return complain(QStringLiteral("%1 is there already").arg(path));
    for (const auto &[path, bytes] : files) {
        const QString problem = writeNewFile(path, bytes);
        if (!problem.isEmpty())
            return complain(problem);
        printf("%s\n", qUtf8Printable(path));
    }
    return Fine;
}

int writeProject(const QString &name, const QString &folder)
{
    if (!QDir().mkpath(folder))
        return complain(QStringLiteral("%1 can't be made").arg(folder));
    const QDir dir(folder);
    return writeFiles({{dir.filePath(QStringLiteral("CMakeLists.txt")), filled(projectStart, name)},
                       {dir.filePath(QStringLiteral("template.svg")), filled(templateStart, name)},
                       {dir.filePath(name + QStringLiteral(".cpp")), filled(sourceStart, name)}});
}

} // namespace

int runNew(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Writes NAME.shape.svg, a declared shape; with --from one that shows a drawing; with --cpp "
                       "the folder NAME with a\n"
                       "project on the kit. Nothing is overwritten.\n\nExit code: 0 written, 2 not."));
    const QCommandLineOption cpp(QStringLiteral("cpp"), QStringLiteral("Write a CMake project of a shape in C++."));
    const QCommandLineOption from(QStringLiteral("from"), QStringLiteral("An SVG file to show."),
                                  QStringLiteral("DRAWING"));
    const QCommandLineOption dir(QStringLiteral("dir"),
                                 QStringLiteral("The folder to write into; the present one."),
                                 QStringLiteral("DIR"), QStringLiteral("."));
    parser.addOptions({cpp, from, dir});
    parser.addPositionalArgument(QStringLiteral("NAME"), QStringLiteral("Letters and digits, a letter first."));
    if (const std::optional<int> end = parse(parser, arguments))
        return *end;
    const QString name = parser.positionalArguments().value(0);
    if (parser.positionalArguments().size() != 1 || !isShapeName(name))
        return complain(QStringLiteral("new needs one name of letters and digits, a letter first."));
    if (parser.isSet(cpp) && parser.isSet(from))
        return complain(QStringLiteral("--from is for declared shapes, not for --cpp."));
    const QDir folder(parser.value(dir));
    if (parser.isSet(cpp))
        return writeProject(name, folder.filePath(name));
    QByteArray text = filled(declaredStart, name);
    if (parser.isSet(from)) {
        const DrawnShape shape = shapeOfDrawing(parser.value(from), name, QStringLiteral("basic"));
        if (!shape.problem.isEmpty())
            return complain(shape.problem);
        text = shape.text;
    }
    if (!QDir().mkpath(folder.path()))
        return complain(QStringLiteral("%1 can't be made").arg(folder.path()));
    return writeFiles({{folder.filePath(name + QStringLiteral(".shape.svg")), text}});
}

} // namespace shapetool
