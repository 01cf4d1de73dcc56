#pragma once

#include <QtCore/qglobal.h>

/// Bounds that keep the cost of any input finite. docs/svg-support.md lists them for template authors.
namespace Svg::Limits {

/// Longest text that load() accepts, bytes.
constexpr int textBytes = 16 * 1024 * 1024;
/// Texts whose documents are kept for the next load(), bytes of all of them; one may take an eighth.
constexpr int knownTextBytes = 1024 * 1024;
/// Memory of outlines that were mapped for drawing and of finished drawings, bytes of all documents of the process,
/// as estimated.
constexpr int displayListBytes = 32 * 1024 * 1024;
/// Deepest nesting of elements, the root being 1.
constexpr int depth = 512;
/// Most elements of a document, whether drawn or not.
constexpr int elements = 200000;
/// Most attributes of one element, and most of them that are animated; Qt's reader compares each with all others.
constexpr int attributes = 256;
/// Most characters of all attributes of a document, those that its document type gives elements included; each
/// attribute counts some more, for the memory that it takes.
constexpr int attributeCharacters = 128 * 1024 * 1024;
constexpr int charactersOfAttribute = 32;
/// Most namespace declarations in force at one element; Qt's reader searches them one by one.
constexpr int namespaceDeclarations = 64;
/// Most segments of one path; an arc counts as one.
constexpr int pathSegments = 32767;
/// Most rules of all style sheets of a document; a selector of a list counts as one.
constexpr int styleRules = 20000;
/// Most cascade layers of a document.
constexpr int styleLayers = 1000;
/// Most classes of one element that rules are looked for by.
constexpr int classes = 256;
/// Most custom properties that all elements of a document declare, that each may declare in any case, and the root;
/// every 16 characters of a value count as one more.
constexpr int customProperties = 4000000;
constexpr int leastCustomProperties = 20;
constexpr int rootCustomProperties = 10000;
constexpr int customPropertyCharacters = 16;
/// Most characters that take the places of "var()" in all elements of a document, and that each may have in any
/// case.
constexpr int substitutedCharacters = 20000000;
constexpr int leastSubstitutedCharacters = 200;
/// Steps that finding the rules of all elements of a document may take, and those that each element has at least.
constexpr int selectorSteps = 15000000;
constexpr int leastSelectorSteps = 200;
/// Most stops of one gradient; a painter tells no more apart.
constexpr int gradientStops = 1000;
/// Longest side of a pattern's tile, and its most pixels; larger ones are painted more coarsely.
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
/// Most nodes that all references of a document ("use" and the content of markers, clip paths, masks and patterns)
/// add to a drawing.
constexpr int useInstances = 100000;
/// Most outline elements (moves, lines and curves count 1 to 3) that all "use" elements add to a drawing.
constexpr int usedOutlineElements = 1000000;
/// Most characters of attributes that are read again for all "use" elements, and for markers and the like.
constexpr int usedCharacters = 10000000;
/// Most characters of one document that are set; the rest is left out. A text counts a few besides, for the time
/// that its layout takes.
constexpr int textCharacters = 100000;
constexpr int charactersOfText = 4;
/// Most "tref" elements of a document, and most characters that one shows.
constexpr int trefs = 100;
constexpr int trefCharacters = 1000;
/// Most "textPath" elements of a document, and most elements of the path that one follows.
constexpr int textPaths = 500;
constexpr int textPathElements = 4000;
/// Most elements of all paths that a document's motions follow.
constexpr int motionElements = 100000;
/// Most parts of one text whose "textLength" counts; inner ones and later ones first.
constexpr int textLengths = 100;
/// Longest list of font families, characters, and its most names.
constexpr int familyCharacters = 2000;
constexpr int listedFamilies = 32;
/// Most names of font families that the system is asked about, in a process; others count as not installed.
constexpr int askedFamilies = 1000;
/// Most fonts of a document, most pairs of characters or glyphs that all of them kern, repeated ones included, and
/// most glyphs of one that begin with the same character.
constexpr int fonts = 100;
constexpr int kerningPairs = 500000;
constexpr int glyphsOfCharacter = 128;
/// Most records of its tables that are looked at for the pictures of a font.
constexpr int fontPictureSteps = 10000000;
/// Most characters that one glyph of a document's font stands for.
constexpr int glyphCharacters = 64;
/// Longest lists of names, languages or weights of a glyph or a font, characters.
constexpr int glyphListCharacters = 256;
/// Most characters and names that kerning knows one glyph by.
constexpr int glyphNames = 8;
/// Most languages that one glyph is for.
constexpr int glyphLanguages = 4;
/// Most shapes inside of one glyph.
constexpr int glyphShapes = 1000;
/// Most outline elements of all glyphs that a document's texts show in fonts of its own.
constexpr int fontOutlineElements = 2000000;
/// Most groups around a text whose lines it shows.
constexpr int decoratingGroups = 16;
/// Most characters that are shaped together; finding the place of each takes longer the more there are.
constexpr int shapedCharacters = 256;
/// Largest coordinate, user units; beyond it painting arithmetic loses whole pixels.
constexpr double coordinate = 1e9;
/// Largest entry of an element's transform to the document.
constexpr double transformEntry = 1e12;
/// Largest coordinate after mapping, painter units; what reaches beyond it is not painted.
constexpr double mappedCoordinate = 1e15;
/// Widest stroke, user units.
constexpr double strokeWidth = 1e6;
/// Most entries of a list of dashes; with more, the stroke is drawn solid.
constexpr int dashEntries = 256;
/// Most dashes along one outline; above it the stroke is drawn solid.
constexpr double dashes = 20000;
/// Most elements of all outlines of strokes that are distorted, so that no pen can draw them, in one drawing.
constexpr int strokeElements = 2000000;
/// Most nodes that one drawing visits to measure what clip paths, masks and filters relate to.
constexpr int boundsVisits = 1000000;
constexpr int contentVisits = 100000;
constexpr int contentDepth = 4;
/// Deepest nesting of clip paths, masks and markers in each other's content.
constexpr int effectDepth = 16;
/// Most outlines of one drawing that keep what painters make of them for the next.
constexpr int keptOutlines = 10000;
/// Most elements of outlines that one drawing keeps mapped; others are mapped whenever they are painted.
constexpr int keptElements = 500000;
/// Elements of the outline of one part of a text; longer parts are painted in pieces.
constexpr int textRunElements = 200000;
/// Most work that one drawing does on elements of outlines, about in nanoseconds, and, for what grows with its
/// size, as much more for every pixel of its target; what comes when it is used up is not painted.
constexpr double paintedWork = 9e8;
constexpr double paintedWorkPerPixel = 400;
/// Additional share of that, and of the pixels painted aside, for tiles of patterns.
constexpr double shareOfTiles = 0.25;
/// Deepest nesting of groups that are painted aside for their opacity; deeper ones apply it to each shape.
constexpr int layerDepth = 64;
/// Most pixels that one drawing paints aside, all groups, clip paths and masks together.
constexpr double layerPixels = 256.0 * 1024 * 1024;
/// What one of them counts besides its pixels, for the time that its making takes.
constexpr double layerOverhead = 8192;
/// The same at any one time, those that filters work on included, and as many times more as the target has.
constexpr double openLayerPixels = 32.0 * 1024 * 1024;
constexpr double openLayerTargets = 8;
/// Most items of a "begin" or an "end".
constexpr int animationConditions = 1000;
/// Most values of one animation.
constexpr int animationValues = 10000;
/// Most begins and ends of animations that are worked out from one moment shown to the next; what would come later
/// does not happen.
constexpr int animationEvents = 100000;
/// Most pixels of an image, judged from its header, and of all different images of a drawing.
constexpr int imagePixels = 64 * 1024 * 1024;
/// The same, each image counted every time that it is shown.
constexpr int shownImagePixels = 256 * 1024 * 1024;
/// Memory of decoded images that are kept for the next drawing, bytes of the whole process.
constexpr int keptPictureBytes = 64 * 1024 * 1024;
/// Deepest nesting of documents in images of documents.
constexpr int imageDepth = 4;
/// Most primitives of a filter, and functions in a list of them.
constexpr int filterPrimitives = 100;
/// Most primitives of all filters of one drawing, each counted wherever it is applied.
constexpr int appliedPrimitives = 200000;
/// Most factors of an "feConvolveMatrix".
constexpr int convolutionFactors = 1024;
/// Most messages that a document keeps.
constexpr int messages = 100;

} // namespace Svg::Limits
