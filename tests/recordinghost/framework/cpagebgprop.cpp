#include <framework/cpagebgprop.h>

#include <recordinghost/log/calllog.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonObject>

using recording::log;

CPageBgProp::CPageBgProp(IPsPage *page)
    : m_page(page)
{
    log("fill", "CPageBgProp", {page != nullptr});
}

bool CPageBgProp::needCreatBrush(const QRectF &rect) const
{
    log("fill", "needCreatBrush", {rect});
    return m_fillEnabled && m_fillType == GradientFill;
}

QBrush CPageBgProp::createBrushByProp(const QRectF &rect, bool forTexture) const
{
    log("fill", "createBrushByProp", {rect, forTexture});
    if (!m_fillEnabled)
        return {};
    QColor color = m_color;
    color.setAlpha(m_opacity);
    return QBrush(color, m_fillType == PatternFill ? m_pattern : Qt::SolidPattern);
}

bool CPageBgProp::operator==(const CPageBgProp &other) const
{
    return m_page == other.m_page && m_followsPage == other.m_followsPage && m_fillType == other.m_fillType &&
           m_fillEnabled == other.m_fillEnabled && m_color == other.m_color && m_opacity == other.m_opacity &&
           m_gradientColor == other.m_gradientColor && m_gradientAngle == other.m_gradientAngle &&
           m_pattern == other.m_pattern && m_pixmap.cacheKey() == other.m_pixmap.cacheKey();
}

bool CPageBgProp::save(QDataStream &out) const
{
    out << qint32(m_fillType) << m_fillEnabled << m_color << qint32(m_opacity);
    return true;
}

bool CPageBgProp::load(QDataStream &in)
{
    qint32 type = 0;
    qint32 opacity = 0;
    bool enabled = false;
    QColor color;
    in >> type >> enabled >> color >> opacity;
    if (in.status() != QDataStream::Ok)
        return false;
    m_fillType = type;
    m_fillEnabled = enabled;
    m_color = color;
    m_opacity = opacity;
    return true;
}

bool CPageBgProp::saveJson(QJsonObject &object) const
{
    object["fillType"] = m_fillType;
    return true;
}

bool CPageBgProp::loadJson(const QJsonObject &object)
{
    m_fillType = object["fillType"].toInt(m_fillType);
    return object["fillType"].isDouble();
}
