#include "properties/propertytable.h"

#include <QtTest/QtTest>

using namespace Svg;

namespace {

using Kind = PropertyAnimation::Kind;

/// A property as the standards describe it: SVG 1.1 and 2, CSS Text, Fonts, Inline, Writing Modes, Text Decoration,
/// Masking, Filter Effects and Compositing.
struct Description
{
    const char *name;
    bool inherited;
    const char *initial;
    /// A value other than the initial one, and how it is printed.
    const char *value;
    const char *printed;
    Kind animation = Kind::Discrete;
    bool hasAttribute = true;
};

const Description descriptions[] = {
    {"color", true, "#000000", "red", "#ff0000", Kind::Colors},
    {"display", false, "inline", "none", "none"},
    {"fill", true, "#000000", "url(#a) lime", "url(#a) #00ff00", Kind::Colors},
    {"fill-opacity", true, "1", "25%", "0.25", Kind::Lengths},
    {"fill-rule", true, "nonzero", "evenodd", "evenodd"},
    {"font-family", true, "", "'A Font', serif", "'A Font', serif"},
    {"font-size", true, "16", "x-large", "24", Kind::Lengths},
    {"font-style", true, "normal", "oblique 10deg", "italic"},
    {"font-weight", true, "400", "bold", "700", Kind::Lengths},
    {"opacity", false, "1", "0.5", "0.5", Kind::Lengths},
    {"paint-order", true, "normal", "stroke", "stroke fill markers"},
    {"stop-color", false, "#000000", "rgba(0, 0, 255, 0.4)", "#0000ff66", Kind::Colors},
    {"stop-opacity", false, "1", "0.125", "0.125", Kind::Lengths},
    {"stroke", true, "none", "context-stroke", "context-stroke", Kind::Colors},
    {"stroke-dasharray", true, "none", "1, 2, 3", "1 2 3 1 2 3", Kind::RepeatedLengths},
    {"stroke-dashoffset", true, "0", "2em", "32", Kind::Lengths},
    {"stroke-linecap", true, "butt", "round", "round"},
    {"stroke-linejoin", true, "miter", "bevel", "bevel"},
    {"stroke-miterlimit", true, "4", "2.5", "2.5", Kind::Lengths},
    {"stroke-opacity", true, "1", "2", "1", Kind::Lengths},
    {"stroke-width", true, "1", "1in", "96", Kind::Lengths},
    {"text-anchor", true, "start", "middle", "middle"},
    {"vector-effect", false, "none", "non-scaling-stroke", "non-scaling-stroke"},
    {"visibility", true, "visible", "collapse", "hidden"},
    {"clip", false, "auto", "rect(1px, 2px, auto, 4px)", "rect(1px, 2px, auto, 4px)"},
    {"clip-path", false, "none", "circle(3px)", "circle(3px)"},
    {"clip-rule", true, "nonzero", "evenodd", "evenodd"},
    {"color-interpolation", true, "sRGB", "linearRGB", "linearRGB"},
    {"color-interpolation-filters", true, "linearRGB", "sRGB", "sRGB"},
    {"filter", false, "none", "blur(2px) url(#a)", "blur(2px) url(#a)"},
    {"flood-color", false, "#000000", "#abc", "#aabbcc", Kind::Colors},
    {"flood-opacity", false, "1", "0", "0", Kind::Lengths},
    {"image-rendering", true, "auto", "crisp-edges", "pixelated"},
    {"isolation", false, "auto", "isolate", "isolate", Kind::Discrete, false},
    {"lighting-color", false, "#ffffff", "navy", "#000080", Kind::Colors},
    {"marker", true, "none", "url(#a)", "url(#a)", Kind::Discrete, false},
    {"marker-end", true, "none", "url(#a)", "url(#a)"},
    {"marker-mid", true, "none", "url('#a')", "url(#a)"},
    {"marker-start", true, "none", "url(#a)", "url(#a)"},
    {"mask", false, "none", "url(#a) alpha", "url(#a) alpha"},
    {"mask-type", false, "luminance", "alpha", "alpha"},
    {"mix-blend-mode", false, "normal", "plus-lighter", "plus-lighter", Kind::Discrete, false},
    {"overflow", false, "visible", "scroll", "hidden"},
    {"shape-rendering", true, "auto", "crispEdges", "optimizeSpeed"},
    {"text-rendering", true, "auto", "optimizeSpeed", "optimizeSpeed"},
    {"alignment-baseline", false, "auto", "after-edge", "after-edge"},
    {"baseline-shift", false, "baseline", "super", "super", Kind::Lengths},
    {"direction", true, "ltr", "rtl", "rtl"},
    {"dominant-baseline", true, "auto", "hanging", "hanging"},
    {"font-kerning", true, "auto", "none", "none"},
    {"font-size-adjust", true, "none", "0.5", "0.5", Kind::Lengths},
    {"font-stretch", true, "normal", "80%", "80%", Kind::Lengths},
    {"font-variant", true, "normal", "all-small-caps none", "all-small-caps no-common-ligatures"},
    {"font-variant-ligatures", true, "normal", "no-common-ligatures", "none"},
    {"glyph-orientation-vertical", true, "auto", "90", "90"},
    {"inline-size", false, "auto", "12", "12", Kind::Lengths},
    {"kerning", true, "auto", "3", "3", Kind::Lengths},
    {"letter-spacing", true, "normal", "25%", "4", Kind::Lengths},
    {"line-height", true, "normal", "24px", "24px", Kind::Lengths},
    {"text-decoration", false, "none", "red 2px wavy underline", "underline wavy #ff0000 2"},
    {"text-decoration-color", false, "currentColor", "red", "#ff0000"},
    {"text-decoration-line", false, "none", "line-through overline", "overline line-through"},
    {"text-decoration-style", false, "solid", "dotted", "dotted"},
    {"text-decoration-thickness", false, "auto", "0.5em", "8", Kind::Lengths},
    {"text-orientation", true, "mixed", "upright", "upright"},
    {"text-transform", true, "none", "uppercase", "uppercase"},
    {"text-underline-offset", true, "auto", "-2", "-2", Kind::Lengths},
    {"text-underline-position", true, "auto", "under left", "under"},
    {"unicode-bidi", false, "normal", "embed", "embed"},
    {"white-space", true, "normal", "pre-wrap", "pre"},
    {"word-spacing", true, "normal", "5", "5", Kind::Lengths},
    {"writing-mode", true, "horizontal-tb", "vertical-lr", "vertical-rl"},
};

AttributeId idOf(const Description &description)
{
    return attributeId(QString::fromLatin1(description.name));
}

QString printed(const ComputedStyle &style, const Description &description)
{
    return propertyOf(idOf(description)).print(style);
}

bool applied(ComputedStyle *style, const Description &description, const char *text,
             const ComputedStyle &parent = ComputedStyle())
{
    return applyProperty(*style, idOf(description), QString::fromLatin1(text), {parent, QSizeF(100, 100)});
}

ComputedStyle styleWithValue(const Description &description)
{
    ComputedStyle style;
    applied(&style, description, description.value);
    return style;
}

} // namespace

class TestProperties : public QObject
{
    Q_OBJECT

private slots:
    void eachPropertyIsDescribedOnce();
    void aFreshStyleHasInitialValues_data() { rows(); }
    void aFreshStyleHasInitialValues();
    void theInitialValueCanBeWritten_data() { rows(); }
    void theInitialValueCanBeWritten();
    void aValueIsPrintedAsItIsUnderstood_data() { rows(); }
    void aValueIsPrintedAsItIsUnderstood();
    void childrenInheritWhatTheStandardsSay_data() { rows(); }
    void childrenInheritWhatTheStandardsSay();
    void keywordsOfAllPropertiesWork_data() { rows(); }
    void keywordsOfAllPropertiesWork();
    void aWrongValueChangesNothing_data() { rows(); }
    void aWrongValueChangesNothing();
    void animationKnowsHowValuesMix_data() { rows(); }
    void animationKnowsHowValuesMix();
    void aComputedValueIsSetWithoutItsText_data() { rows(); }
    void aComputedValueIsSetWithoutItsText();
    void styleOnlyPropertiesAreNoAttributes_data() { rows(); }
    void styleOnlyPropertiesAreNoAttributes();
    void aShorthandCopiesAllItsMembers();
    void valuesOutOfRangeAreNotSet();

private:
    static void rows();
    static const Description &row();
};

void TestProperties::rows()
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < int(std::size(descriptions)); ++i)
        QTest::newRow(descriptions[i].name) << i;
}

const Description &TestProperties::row()
{
    QFETCH(int, index);
    return descriptions[index];
}

void TestProperties::eachPropertyIsDescribedOnce()
{
    QStringList described;
    for (const Description &description : descriptions)
        described.append(QString::fromLatin1(description.name));
    QStringList known;
    for (int id = int(firstProperty); id <= int(lastProperty); ++id) {
        known.append(attributeName(AttributeId(id)));
        QCOMPARE(propertyOf(AttributeId(id)).id, AttributeId(id));
    }
    described.sort();
    known.sort();
    QCOMPARE(known, described);
}

void TestProperties::aFreshStyleHasInitialValues()
{
    QCOMPARE(printed(ComputedStyle(), row()), QString::fromLatin1(row().initial));
}

void TestProperties::theInitialValueCanBeWritten()
{
    ComputedStyle style = styleWithValue(row());
    // Which font is the initial one depends on the system, so that it has no name (CSS Fonts 4 §2.1).
    const bool hasText = row().name != QByteArray("font-family");
    QCOMPARE(applied(&style, row(), row().initial), hasText);
    QCOMPARE(printed(style, row()), QString::fromLatin1(hasText ? row().initial : row().printed));
}

void TestProperties::aValueIsPrintedAsItIsUnderstood()
{
    ComputedStyle style;
    QVERIFY(applied(&style, row(), row().value));
    QCOMPARE(printed(style, row()), QString::fromLatin1(row().printed));
    ComputedStyle again;
    QVERIFY(applied(&again, row(), row().printed));
    QCOMPARE(printed(again, row()), QString::fromLatin1(row().printed));
}

void TestProperties::childrenInheritWhatTheStandardsSay()
{
    const ComputedStyle child = inheritedStyle(styleWithValue(row()));
    QCOMPARE(propertyOf(idOf(row())).inherited, row().inherited);
    QCOMPARE(printed(child, row()), QString::fromLatin1(row().inherited ? row().printed : row().initial));
}

void TestProperties::keywordsOfAllPropertiesWork()
{
    const ComputedStyle parent = styleWithValue(row());
    ComputedStyle style;
    QVERIFY(applied(&style, row(), "INHERIT", parent));
    QCOMPARE(printed(style, row()), QString::fromLatin1(row().printed));
    QVERIFY(applied(&style, row(), " initial ", parent));
    QCOMPARE(printed(style, row()), QString::fromLatin1(row().initial));
    for (const char *keyword : {"unset", "revert"}) {
        ComputedStyle other = row().inherited ? ComputedStyle() : parent;
        QVERIFY(applied(&other, row(), keyword, parent));
        QCOMPARE(printed(other, row()), QString::fromLatin1(row().inherited ? row().printed : row().initial));
    }
}

// Any word is a way to be displayed, or a font; lists of filters are read when they are drawn.
void TestProperties::aWrongValueChangesNothing()
{
    const QByteArray name = row().name;
    const bool takesWords = name == "display" || name == "font-family" || name == "filter";
    const char *const wrong = takesWords ? "" : "of no use";
    ComputedStyle style = styleWithValue(row());
    QVERIFY(!applied(&style, row(), wrong));
    QCOMPARE(printed(style, row()), QString::fromLatin1(row().printed));
}

void TestProperties::animationKnowsHowValuesMix()
{
    QCOMPARE(propertyOf(idOf(row())).animation.kind, row().animation);
}

void TestProperties::aComputedValueIsSetWithoutItsText()
{
    const PropertyAnimation &animation = propertyOf(idOf(row())).animation;
    QCOMPARE(animation.value != nullptr, row().animation != Kind::Discrete);
    QCOMPARE(animation.assign != nullptr, row().animation != Kind::Discrete);
    if (!animation.value)
        return;
    const ComputedStyle from = styleWithValue(row());
    const std::optional<TypedValue> value = animation.value(from);
    // Paints other than colours, shifts by the font and absolute heights of lines can only be replaced.
    static const QByteArray replaced[] = {"fill", "stroke", "baseline-shift", "line-height"};
    const bool mixes = std::find(std::begin(replaced), std::end(replaced), row().name) == std::end(replaced);
    QCOMPARE(value.has_value(), mixes);
    if (!value)
        return;
    const ComputedStyle parent;
    ComputedStyle style;
    QVERIFY(animation.assign(style, *value, {parent, QSizeF(100, 100)}));
    QCOMPARE(printed(style, row()), QString::fromLatin1(row().printed));
}

void TestProperties::styleOnlyPropertiesAreNoAttributes()
{
    QCOMPARE(!propertyOf(idOf(row())).isForStyleOnly, row().hasAttribute);
}

void TestProperties::aShorthandCopiesAllItsMembers()
{
    ComputedStyle parent;
    const ComputedStyle initial;
    QVERIFY(applyProperty(parent, AttributeId::MarkerStart, QStringLiteral("url(#a)"), {initial, QSizeF()}));
    QVERIFY(applyProperty(parent, AttributeId::MarkerEnd, QStringLiteral("url(#b)"), {initial, QSizeF()}));
    QCOMPARE(propertyOf(AttributeId::Marker).print(parent), QString());
    ComputedStyle style;
    QVERIFY(applyProperty(style, AttributeId::Marker, QStringLiteral("url(#c)"), {initial, QSizeF()}));
    QVERIFY(applyProperty(style, AttributeId::Marker, QStringLiteral("inherit"), {parent, QSizeF()}));
    QCOMPARE(propertyOf(AttributeId::MarkerStart).print(style), QStringLiteral("url(#a)"));
    QCOMPARE(propertyOf(AttributeId::MarkerMid).print(style), QStringLiteral("none"));
    QCOMPARE(propertyOf(AttributeId::MarkerEnd).print(style), QStringLiteral("url(#b)"));
}

void TestProperties::valuesOutOfRangeAreNotSet()
{
    const ComputedStyle parent;
    const auto sets = [&parent](AttributeId id, const QVector<Length> &lengths) {
        ComputedStyle style;
        return propertyOf(id).animation.assign(style, lengths, {parent, QSizeF(100, 100)});
    };
    QVERIFY(!sets(AttributeId::StrokeWidth, {{-1}}));
    QVERIFY(!sets(AttributeId::StrokeWidth, {{1}, {2}}));
    QVERIFY(!sets(AttributeId::StrokeMiterlimit, {{0.5}}));
    QVERIFY(!sets(AttributeId::FontSize, {{-1}}));
    QVERIFY(!sets(AttributeId::FontWeight, {{1001}}));
    QVERIFY(!sets(AttributeId::Opacity, {{1, Unit::Em}}));
    QVERIFY(!sets(AttributeId::StrokeDasharray, {{1}, {-1}}));
    QVERIFY(!sets(AttributeId::FontStretch, {{80}}));
    QVERIFY(!sets(AttributeId::LineHeight, {{-1}}));
    QVERIFY(!sets(AttributeId::InlineSize, {{-1}}));
    QVERIFY(!sets(AttributeId::TextDecorationThickness, {{-1}}));
    QVERIFY(!sets(AttributeId::FontSizeAdjust, {{-1}}));
    QVERIFY(sets(AttributeId::StrokeDashoffset, {{-1}}));
}

QTEST_APPLESS_MAIN(TestProperties)

#include "test_properties.moc"
