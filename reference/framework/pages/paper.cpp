#include <pagehost/paper.h>

namespace pagehost {

namespace {

/// Scene units, 96 an inch.
constexpr double ruledDistance = 40;
constexpr double firstRule = 80;
constexpr double squareSide = 32;
constexpr double dotWidth = 3;
/// Painters leave out lines of no length.
constexpr double dotLength = 0.01;
constexpr double staffDistance = 120;
constexpr double staffLineDistance = 12;
constexpr double staffMargin = 40;
constexpr int staffLines = 5;
constexpr double millimetre = 96 / 25.4;
/// Every fifth and tenth line of millimetre paper is stronger.
constexpr int mediumLine = 5;
constexpr int strongLine = 10;

constexpr int lightGround = 128;
constexpr QRgb inkOnLight = 0xff6f8fb8;
constexpr QRgb inkOnDark = 0xffc8d6e8;
constexpr int faintAlpha = 70;
constexpr int mediumAlpha = 130;
constexpr int strongAlpha = 200;

QColor ink(const QColor &ground, int alpha)
{
    QColor color(ground.lightness() >= lightGround ? inkOnLight : inkOnDark);
    color.setAlpha(alpha);
    return color;
}

void addAcross(QVector<QLineF> &lines, double y, const QSizeF &page, double margin = 0)
{
    lines.append(QLineF(margin, y, page.width() - margin, y));
}

void addDown(QVector<QLineF> &lines, double x, const QSizeF &page)
{
    lines.append(QLineF(x, 0, x, page.height()));
}

PaperLines ruled(const QSizeF &page, const QColor &ground)
{
    PaperLines paper{{}, 1, ink(ground, strongAlpha)};
    for (int i = 0; firstRule + i * ruledDistance < page.height(); ++i)
        addAcross(paper.lines, firstRule + i * ruledDistance, page);
    return paper;
}

PaperLines squared(const QSizeF &page, const QColor &ground)
{
    PaperLines paper{{}, 1, ink(ground, mediumAlpha)};
    for (int i = 1; i * squareSide < page.height(); ++i)
        addAcross(paper.lines, i * squareSide, page);
    for (int i = 1; i * squareSide < page.width(); ++i)
        addDown(paper.lines, i * squareSide, page);
    return paper;
}

PaperLines dotted(const QSizeF &page, const QColor &ground)
{
    PaperLines paper{{}, dotWidth, ink(ground, strongAlpha)};
    for (int row = 1; row * squareSide < page.height(); ++row)
        for (int column = 1; column * squareSide < page.width(); ++column) {
            const QPointF dot(column * squareSide, row * squareSide);
            paper.lines.append(QLineF(dot, dot + QPointF(dotLength, 0)));
        }
    return paper;
}

PaperLines music(const QSizeF &page, const QColor &ground)
{
    PaperLines paper{{}, 1, ink(ground, strongAlpha)};
    const double height = (staffLines - 1) * staffLineDistance;
    for (double top = staffDistance / 2; top + height < page.height(); top += staffDistance)
        for (int line = 0; line < staffLines; ++line)
            addAcross(paper.lines, top + line * staffLineDistance, page, staffMargin);
    return paper;
}

QVector<PaperLines> millimetres(const QSizeF &page, const QColor &ground)
{
    QVector<PaperLines> papers{
        {{}, 0.5, ink(ground, faintAlpha)}, {{}, 0.5, ink(ground, mediumAlpha)}, {{}, 1, ink(ground, strongAlpha)}};
    const auto of = [&papers](int number) -> QVector<QLineF> & {
        if (number % strongLine == 0)
            return papers[2].lines;
        return papers[number % mediumLine == 0 ? 1 : 0].lines;
    };
    for (int i = 1; i * millimetre < page.height(); ++i)
        addAcross(of(i), i * millimetre, page);
    for (int i = 1; i * millimetre < page.width(); ++i)
        addDown(of(i), i * millimetre, page);
    return papers;
}

} // namespace

bool isPaperPattern(int pattern)
{
    return pattern >= firstPaperPattern && pattern < firstPaperPattern + int(Paper::Millimetre);
}

Paper paperOf(const CPageBgProp &background)
{
    const bool isPaper = background.isFillEnable() && background.fillType() == CPageBgProp::PatternFill &&
                         isPaperPattern(background.pattern());
    return isPaper ? Paper(background.pattern() - firstPaperPattern + int(Paper::Ruled)) : Paper::Blank;
}

void setPaper(CPageBgProp &background, Paper paper)
{
    background.setFillEnable(true);
    if (paper == Paper::Blank) {
        background.setFillType(CPageBgProp::SolidFill);
        return;
    }
    background.setFillType(CPageBgProp::PatternFill);
    background.setPattern(Qt::BrushStyle(firstPaperPattern + int(paper) - int(Paper::Ruled)));
}

QVector<PaperLines> paperLines(Paper paper, const QSizeF &page, const QColor &ground)
{
    switch (paper) {
    case Paper::Blank:
        break;
    case Paper::Ruled:
        return {ruled(page, ground)};
    case Paper::Squared:
        return {squared(page, ground)};
    case Paper::Dotted:
        return {dotted(page, ground)};
    case Paper::Music:
        return {music(page, ground)};
    case Paper::Millimetre:
        return millimetres(page, ground);
    }
    return {};
}

} // namespace pagehost
