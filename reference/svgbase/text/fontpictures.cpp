#include "text/fontpictures.h"

#include "text/fontmeasures.h"
#include "text/fonttables.h"

namespace Svg {

namespace {

// Offset of the number of advances, and their spacing (OpenType, "hhea" and "hmtx").
constexpr int advanceCountOffset = 34;
constexpr int advanceBytes = 4;

} // namespace

FontPictures::FontPictures(const QRawFont &font)
    : m_font(font)
    , m_bitmaps(font.fontTable("CBLC"), font.fontTable("CBDT"))
{
}

// Qt scales the advances of fonts without outlines by one strike or another.
double FontPictures::advanceOf(quint32 glyph) const
{
    const int count = tableNumber<quint16>(m_font.fontTable("hhea"), advanceCountOffset).value_or(0);
    const qint64 place = qBound<qint64>(0, glyph, qMax(0, count - 1));
    const std::optional<quint16> advance = tableNumber<quint16>(m_font.fontTable("hmtx"), place * advanceBytes);
    return advance.value_or(0) * m_font.pixelSize() / unitsPerEm(m_font);
}

std::shared_ptr<const GlyphPicture> FontPictures::read(quint32 glyph)
{
    const std::optional<GlyphBitmap> bitmap = m_bitmaps.find(glyph);
    Problem problem;
    const ImagePointer content = bitmap ? readPicture(bitmap->png, &problem) : nullptr;
    if (!content)
        return nullptr;
    auto picture = std::make_shared<GlyphPicture>();
    const double size = m_font.pixelSize();
    const QTransform toSize = QTransform::fromScale(size / bitmap->pixelsPerEmX, size / bitmap->pixelsPerEmY);
    picture->shown = {content, QTransform::fromTranslate(bitmap->corner.x(), bitmap->corner.y()) * toSize};
    picture->advance = advanceOf(glyph);
    return picture;
}

Problem FontPictures::problem() const
{
    if (!m_bitmaps.tookTooLong())
        return {};
    return {Message::ListTooLong,
            QStringLiteral("Of a font, pictures that take more than %1 steps to find are left out.")
                .arg(Limits::fontPictureSteps)};
}

const GlyphPicture *FontPictures::find(quint32 glyph)
{
    if (isEmpty())
        return nullptr;
    auto known = m_known.find(glyph);
    if (known == m_known.end())
        known = m_known.insert(glyph, read(glyph));
    return known->get();
}

} // namespace Svg
