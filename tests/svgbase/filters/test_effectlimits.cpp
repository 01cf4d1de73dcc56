#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"

#include <QtTest>

using namespace Svg;

namespace {

/// Definitions "c0" to "c<count - 1>", each made from its own id and that of the one before it.
QString chain(int count, const QString &first, const QString &next)
{
    QString text = first;
    for (int i = 1; i < count; ++i)
        text += QString(next).replace("THIS", QString::number(i)).replace("BEFORE", QString::number(i - 1));
    return text;
}

/// The innermost of all leaves a strip on the left, the others the upper half.
QString effectChain(const QString &element, const QString &property, int effects)
{
    const QString first = "<" + element + " id='c0'><rect width='10' height='100' fill='white'/></" + element + ">";
    const QString next = "<" + element + " id='cTHIS' " + property +
                         "='url(#cBEFORE)'><rect width='100' height='50' fill='white'/></" + element + ">";
    return chain(effects, first, next) +
           QString("<rect width='100' height='100' %1='url(#c%2)'/>").arg(property).arg(effects - 1);
}

QString filterOf(int primitives)
{
    return "<filter id='f'>" + QString("<feFlood flood-color='#0f0'/>").repeated(primitives) +
           "</filter><rect width='100' height='100' fill='red' filter='url(#f)'/>";
}

/// Ten times each, so that following all of them would never end.
QString tree(const QString &first, const QString &element, const QString &content, const QString &use)
{
    constexpr int levels = 12;
    const QString next = "<" + element + " id='cTHIS'>" + content.repeated(10) + "</" + element + ">";
    return chain(levels, first, next) + use;
}

} // namespace

class TestEffectLimits : public QObject
{
    Q_OBJECT

private slots:
    void chainsOfEffectsAreDrawnUpToTheLimit_data();
    void chainsOfEffectsAreDrawnUpToTheLimit();
    void filtersHaveOnlySoManyPrimitives();
    void workOnOutlinesIsBounded();
    void resultsThatWaitAreBounded();
    void treesOfReferencesEnd_data();
    void treesOfReferencesEnd();
    void largeEffectsAreSurvived_data();
    void largeEffectsAreSurvived();
};

void TestEffectLimits::chainsOfEffectsAreDrawnUpToTheLimit_data()
{
    QTest::addColumn<QString>("element");
    QTest::addColumn<QString>("property");
    QTest::newRow("clip paths") << "clipPath"
                                << "clip-path";
    QTest::newRow("masks") << "mask"
                           << "mask";
}

void TestEffectLimits::chainsOfEffectsAreDrawnUpToTheLimit()
{
    QFETCH(QString, element);
    QFETCH(QString, property);
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document =
            loadContent(effectChain(element, property, Limits::effectDepth + (isBeyond ? 1 : 0)));
        const QImage image = drawn(*document);
        QCOMPARE(image.pixelColor(5, 25), QColor(Qt::black));
        QCOMPARE(image.pixelColor(50, 25), isBeyond ? QColor(Qt::black) : QColor(Qt::transparent));
        QCOMPARE(image.pixelColor(50, 75).alpha(), 0);
        QCOMPARE(document->messages().size(), isBeyond ? 1 : 0);
    }
}

void TestEffectLimits::filtersHaveOnlySoManyPrimitives()
{
    QCOMPARE(drawnContent(filterOf(Limits::filterPrimitives)).pixelColor(50, 50), QColor(0, 255, 0));
    // A filter that can't be applied counts as none.
    QCOMPARE(drawnContent(filterOf(Limits::filterPrimitives + 1)).pixelColor(50, 50), QColor(255, 0, 0));
}

void TestEffectLimits::workOnOutlinesIsBounded()
{
    const QString dense = "<path fill='none' stroke='red' d='M0 0" + QString("L99 99 0 0").repeated(15000) + "'/>";
    const QString content = "<rect width='9' height='9' fill='#00f'/>" + dense.repeated(20) +
                            "<rect x='90' width='9' height='9' fill='#00f'/>";
    const QImage image = drawnContent(content);
    QCOMPARE(image.pixelColor(2, 7), QColor(0, 0, 255));
    QCOMPARE(image.pixelColor(95, 2).alpha(), 0);
}

void TestEffectLimits::resultsThatWaitAreBounded()
{
    // Each of the results is asked for at the end: together they are more than may be held at 1000 × 1000 pixels.
    QString results;
    QString merge;
    for (int i = 0; i < 50; ++i) {
        results += QString("<feFlood flood-color='#0f0' result='r%1'/>").arg(i);
        merge += QString("<feMergeNode in='r%1'/>").arg(i);
    }
    const DocumentPointer document =
        loadContent("<filter id='f' x='0' y='0' width='1' height='1'>" + results + "<feMerge>" + merge +
                    "</feMerge></filter><rect width='100' height='100' filter='url(#f)'/>");
    QCOMPARE(drawn(*document, QSize(100, 100)).pixelColor(50, 50), QColor(0, 255, 0));
    QCOMPARE(drawn(*document, QSize(1000, 1000)).pixelColor(500, 500).alpha(), 0);
}

void TestEffectLimits::treesOfReferencesEnd_data()
{
    QTest::addColumn<QString>("content");
    const QString rect = "<rect width='50' height='50' fill='white'/>";
    QTest::newRow("clip paths") << tree("<clipPath id='c0'>" + rect + "</clipPath>", "clipPath",
                                        "<rect width='90' height='90' clip-path='url(#cBEFORE)'/>",
                                        "<rect width='100' height='100' clip-path='url(#c11)'/>");
    QTest::newRow("masks") << tree("<mask id='c0'>" + rect + "</mask>", "mask",
                                   "<rect width='90' height='90' fill='white' mask='url(#cBEFORE)'/>",
                                   "<rect width='100' height='100' mask='url(#c11)'/>");
    QTest::newRow("markers") << tree("<marker id='c0'>" + rect + "</marker>", "marker",
                                     "<path d='M0 0L1 1 2 2' marker-mid='url(#cBEFORE)'/>",
                                     "<path d='M0 0L1 1 2 2' marker-mid='url(#c11)'/>");
    QTest::newRow("faded uses") << tree("<g id='c0'>" + rect + "</g>", "g",
                                        "<use opacity='.9' xlink:href='#cBEFORE'/>", "<use xlink:href='#c11'/>");
    QTest::newRow("pictures in filters") << tree("<g id='c0'>" + rect + "</g>", "g",
                                                 "<filter id='fTHIS'><feImage href='#cBEFORE'/></filter>"
                                                 "<rect width='90' height='90' filter='url(#fTHIS)'/>",
                                                 "<filter id='f'><feImage href='#c11'/></filter>"
                                                 "<rect width='90' height='90' filter='url(#f)'/>");
    const QString pictures = QString("<feImage href='#cBEFORE'/>").repeated(50);
    QTest::newRow("pictures of filtered shapes") << chain(12, "<rect id='c0' width='50' height='50'/>",
                                                          "<filter id='fTHIS'>" + pictures +
                                                              "</filter><rect id='cTHIS' width='9' height='9' "
                                                              "filter='url(#fTHIS)'/>");
    QTest::newRow("boxes of uses") << tree("<g id='c0'>" + rect + "</g>", "g",
                                           "<use clip-path='url(#k)' xlink:href='#cBEFORE'/>",
                                           "<clipPath id='k' clipPathUnits='objectBoundingBox'><circle r='1'/>"
                                           "</clipPath><use clip-path='url(#k)' xlink:href='#c11'/>");
}

void TestEffectLimits::treesOfReferencesEnd()
{
    QFETCH(QString, content);
    const QImage image = drawnContent("<rect x='95' y='95' width='5' height='5' fill='#0f0'/>" + content);
    QCOMPARE(image.pixelColor(97, 97), QColor(0, 255, 0));
}

void TestEffectLimits::largeEffectsAreSurvived_data()
{
    QTest::addColumn<QString>("content");
    const auto filtered = [](const QString &primitives, const QString &attributes = QString()) {
        return "<filter id='f' " + attributes + ">" + primitives + "</filter>" +
               QString("<rect width='90' height='90' filter='url(#f)'/>").repeated(10);
    };
    QTest::newRow("huge blur") << filtered("<feGaussianBlur stdDeviation='1e9'/>");
    QTest::newRow("many blurs") << filtered(QString("<feGaussianBlur stdDeviation='5'/>").repeated(20));
    QTest::newRow("huge radius") << filtered("<feMorphology radius='1e9'/><feMorphology operator='dilate' "
                                             "radius='1e9'/>");
    QTest::newRow("huge region") << filtered("<feFlood/><feOffset dx='1e9'/><feTile/>",
                                             "filterUnits='userSpaceOnUse' x='-1e9' y='-1e9' width='2e9' "
                                             "height='2e9'");
    QTest::newRow("numbers without end") << filtered("<feComposite operator='arithmetic' k1='1e300' k4='-1e300' "
                                                     "in2='SourceGraphic'/><feColorMatrix type='hueRotate' "
                                                     "values='1e300'/><feComponentTransfer><feFuncR type='gamma' "
                                                     "exponent='-1e300' amplitude='1e300'/></feComponentTransfer>");
    QTest::newRow("noise without end") << filtered("<feTurbulence baseFrequency='1e300' numOctaves='1000000000'/>"
                                                   "<feTurbulence baseFrequency='1e9 1e-9' type='fractalNoise' "
                                                   "stitchTiles='stitch'/><feTurbulence baseFrequency='-1'/>",
                                                   "filterUnits='userSpaceOnUse' x='-1e9' y='-1e9' width='2e9' "
                                                   "height='2e9'");
    QTest::newRow("lights without end")
        << filtered("<feSpecularLighting surfaceScale='1e300' specularConstant='1e300' specularExponent='1e300'>"
                    "<feSpotLight x='1e300' z='-1e300' specularExponent='1e300' limitingConeAngle='1e300'/>"
                    "</feSpecularLighting><feDiffuseLighting surfaceScale='-1e300' diffuseConstant='1e9'>"
                    "<fePointLight x='5' y='5'/></feDiffuseLighting><feDiffuseLighting><feDistantLight "
                    "azimuth='1e300' elevation='1e300'/></feDiffuseLighting>");
    QTest::newRow("kernels without end")
        << filtered("<feConvolveMatrix order='16' kernelMatrix='" + QString("1e300 ").repeated(256) +
                    "' edgeMode='wrap' bias='1e300'/><feConvolveMatrix order='1e9' kernelMatrix='1'/>"
                    "<feConvolveMatrix kernelMatrix='1 1 1 1 1 1 1 1 1' divisor='1e-300' targetX='-1'/>");
    QTest::newRow("ways without end") << filtered("<feDisplacementMap in2='SourceGraphic' scale='1e300'/>"
                                                  "<feDisplacementMap in2='SourceGraphic' scale='-1e300'/>");
    QTest::newRow("huge markers") << "<marker id='m' markerWidth='1e9' markerHeight='1e9' viewBox='0 0 1e-9 1e-9'>"
                                     "<rect width='9' height='9' opacity='.5'/></marker>"
                                     "<path d='M0 0L9 9' stroke-width='1e6' marker-end='url(#m)'/>";
    QTest::newRow("nested filters") << "<filter id='f'><feGaussianBlur stdDeviation='2'/></filter>" +
                                           QString("<g filter='url(#f)'>").repeated(300) + "<rect/>" +
                                           QString("</g>").repeated(300);
    QTest::newRow("many hand-made blends")
        << QString("<rect width='90' height='90' style='mix-blend-mode:hue'/>").repeated(300);
}

void TestEffectLimits::largeEffectsAreSurvived()
{
    QFETCH(QString, content);
    const DocumentPointer document =
        loadContent(content + "<rect x='95' y='95' width='5' height='5' fill='#0f0'/>");
    const QImage image = drawn(*document);
    QCOMPARE(image.pixelColor(97, 97), QColor(0, 255, 0));
}

QTEST_MAIN(TestEffectLimits)
#include "test_effectlimits.moc"
