#pragma once

#include <QtCore/qglobal.h>

/// Bounds that keep the cost of any input finite. docs/svg-support.md lists them for template authors.
namespace Svg::Limits {

/// Longest text that load() accepts, bytes.
constexpr int textBytes = 16 * 1024 * 1024;
/// Cache of texts and their documents for the next load(), bytes of all texts; one may take an eighth.
constexpr int knownTextBytes = 1024 * 1024;
/// Estimated memory of mapped outlines and finished drawings, bytes of all documents of the process.
constexpr int displayListBytes = 32 * 1024 * 1024;
/// Deepest nesting of elements, the root being 1.
constexpr int depth = 512;
/// Most elements of a document, whether drawn or not.
constexpr int elements = 200000;
/// Most attributes of one element, and most of them that are animated; Qt's reader compares each with all others.
constexpr int attributes = 256;
/// Most characters of all attributes of a document, with defaults of its document type; each attribute counts some
/// more, for its memory.
constexpr int attributeCharacters = 128 * 1024 * 1024;
constexpr int charactersOfAttribute = 48;
/// Most namespace declarations in scope at one element; Qt's reader searches them one by one.
constexpr int namespaceDeclarations = 64;
/// Most segments of one path; an arc counts as one.
constexpr int pathSegments = 32767;
/// Most rules of all style sheets of a document; a selector of a list counts as one.
constexpr int styleRules = 20000;
/// Most cascade layers of a document.
constexpr int styleLayers = 1000;
/// Most classes of one element used to look up rules.
constexpr int classes = 256;
/// Most custom properties declared by all elements of a document, guaranteed to each element, and declared by the
/// root; every 16 characters of a value count as one more.
constexpr int customProperties = 4000000;
constexpr int leastCustomProperties = 20;
constexpr int rootCustomProperties = 10000;
constexpr int customPropertyCharacters = 16;
/// Most characters substituted for "var()" in all elements of a document, and guaranteed to each element.
constexpr int substitutedCharacters = 20000000;
constexpr int leastSubstitutedCharacters = 200;
/// Most steps of selector matching for all elements of a document, and guaranteed to each element.
constexpr int selectorSteps = 10000000;
constexpr int leastSelectorSteps = 200;
/// Most stops of one gradient; painters don't distinguish more.
constexpr int gradientStops = 1000;
/// Longest side and most pixels of a pattern's tile; larger ones are painted at a lower resolution.
constexpr int patternSide = 8192;
constexpr double patternPixels = 4.0 * 1024 * 1024;
/// Most pixels of all tiles of one drawing.
constexpr double patternsPixels = 32.0 * 1024 * 1024;
/// Most different tiles of one drawing.
constexpr int patterns = 2000;
/// Longest chain of "href" between gradients.
constexpr int gradientReferences = 32;
/// Deepest nesting of "use" in "use".
constexpr int useDepth = 32;
/// Most nodes added to a drawing by all references of a document ("use" and the content of markers, clip paths,
/// masks and patterns).
constexpr int useInstances = 100000;
/// Most outline elements (moves, lines and curves count 1 to 3) added to a drawing by all "use" elements.
constexpr int usedOutlineElements = 1000000;
/// Most characters of attributes read again for "use" elements, markers and the like.
constexpr int usedCharacters = 10000000;
/// Most characters of one document that are laid out; the rest is left out. Each text counts a few more, for the
/// time of its layout, and each code unit of a pictograph more, since Qt decodes its bitmap several times.
constexpr int textCharacters = 100000;
constexpr int charactersOfText = 4;
constexpr int charactersOfPictograph = 8;
/// Most "tref" elements of a document, and most characters shown by one.
constexpr int trefs = 100;
constexpr int trefCharacters = 1000;
/// Most "textPath" elements of a document, and most elements of the path of one.
constexpr int textPaths = 500;
constexpr int textPathElements = 4000;
/// Most elements of all motion paths of a document.
constexpr int motionElements = 100000;
/// Most parts of one text whose "textLength" applies; inner ones and later ones first.
constexpr int textLengths = 100;
/// Longest list of font families, characters, and most names in it.
constexpr int familyCharacters = 2000;
constexpr int listedFamilies = 32;
/// Most names of font families looked up in the system, per process; others count as not installed.
constexpr int askedFamilies = 1000;
/// Most fonts of a document, most kerned pairs of characters or glyphs in all of them, repetitions included, and
/// most glyphs of one that begin with the same character.
constexpr int fonts = 100;
constexpr int kerningPairs = 500000;
constexpr int glyphsOfCharacter = 128;
/// Most records of its tables read for the glyph pictures of a font.
constexpr int fontPictureSteps = 10000000;
/// Most characters represented by one glyph of a document's font.
constexpr int glyphCharacters = 64;
/// Longest lists of names, languages or weights of a glyph or a font, characters.
constexpr int glyphListCharacters = 256;
/// Most characters and names of one glyph for kerning.
constexpr int glyphNames = 8;
/// Most languages of one glyph.
constexpr int glyphLanguages = 4;
/// Most shapes of one glyph.
constexpr int glyphShapes = 1000;
/// Most outline elements of all glyphs shown by a document's texts in its own fonts.
constexpr int fontOutlineElements = 2000000;
/// Most groups around a text whose decoration it shows.
constexpr int decoratingGroups = 16;
/// Most characters shaped together; locating each takes longer the more there are.
constexpr int shapedCharacters = 256;
/// Largest coordinate, user units; beyond it the arithmetic of painting loses whole pixels.
constexpr double coordinate = 1e9;
/// Largest entry of an element's transform to the document.
constexpr double transformEntry = 1e12;
/// Largest coordinate after mapping, painter units; outlines beyond it are not painted.
constexpr double mappedCoordinate = 1e15;
/// Widest stroke, user units.
constexpr double strokeWidth = 1e6;
/// Most entries of a list of dashes; with more, the stroke is drawn solid.
constexpr int dashEntries = 256;
/// Most dashes along one outline; above it the stroke is drawn solid.
constexpr double dashes = 20000;
/// Most elements of the outlines of all distorted strokes in one drawing, which no pen can draw.
constexpr int strokeElements = 2000000;
/// Most nodes measured in one drawing for the boxes of clip paths, masks and filters.
constexpr int boundsVisits = 1000000;
constexpr int contentVisits = 100000;
constexpr int contentDepth = 4;
/// Deepest nesting of clip paths, masks and markers.
constexpr int effectDepth = 16;
/// Most outlines of one drawing that keep the painters' own data for the next.
constexpr int keptOutlines = 10000;
/// Most mapped outline elements kept by one drawing; others are mapped at each painting.
constexpr int keptElements = 500000;
/// Outline elements of one part of a text; longer parts are painted in pieces.
constexpr int textRunElements = 200000;
/// Most work on outline elements in one drawing, roughly nanoseconds, and an allowance for every pixel of its
/// target for work that grows with its size; the rest is not painted.
constexpr double paintedWork = 7e8;
constexpr double paintedWorkPerPixel = 250;
/// Additional share of that, and of the layer pixels, for tiles of patterns.
constexpr double shareOfTiles = 0.25;
/// Deepest nesting of layers; deeper groups apply their opacity to each shape.
constexpr int layerDepth = 64;
/// Most pixels of all layers of one drawing, for groups, clip paths and masks together.
constexpr double layerPixels = 256.0 * 1024 * 1024;
/// Pixels added for each layer, for the time of its creation.
constexpr double layerOverhead = 8192;
/// Most pixels of layers open at a time, with those of filters, and the same in multiples of the target's pixels.
constexpr double openLayerPixels = 32.0 * 1024 * 1024;
constexpr double openLayerTargets = 8;
/// Most items of a "begin" or an "end".
constexpr int animationConditions = 1000;
/// Most values of one animation.
constexpr int animationValues = 10000;
/// Most begins and ends of animations between two displayed times; later ones don't happen.
constexpr int animationEvents = 100000;
/// Most pixels of an image, by its header, and of all distinct images of a drawing.
constexpr int imagePixels = 64 * 1024 * 1024;
/// The same, each image counted at every use.
constexpr int shownImagePixels = 256 * 1024 * 1024;
/// Cache of decoded images for the next drawing, bytes of the whole process.
constexpr int keptPictureBytes = 64 * 1024 * 1024;
/// Deepest nesting of SVG images.
constexpr int imageDepth = 4;
/// Most primitives of a filter, and functions in a filter list.
constexpr int filterPrimitives = 100;
/// Most applied primitives of all filters of one drawing.
constexpr int appliedPrimitives = 200000;
/// Most factors of an "feConvolveMatrix".
constexpr int convolutionFactors = 1024;
/// Most messages that a document keeps.
constexpr int messages = 100;

} // namespace Svg::Limits
