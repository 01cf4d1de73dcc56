#pragma once

#include <QtCore/QString>

namespace Svg {

/// Collects XML text; characters that are not allowed in XML are left out.
class XmlText
{
public:
    void openTag(const QString &name) { m_text += QLatin1Char('<') + name; }
    void attribute(const QString &name, const QString &value);
    void closeTag() { m_text += QLatin1Char('>'); }
    void closeEmptyTag() { m_text += QLatin1String("/>"); }
    void endTag(const QString &name) { m_text += QLatin1String("</") + name + QLatin1Char('>'); }
    void characters(const QString &text);
    void newLine() { m_text += QLatin1Char('\n'); }
    QByteArray bytes() const { return m_text.toUtf8(); }

private:
    QString m_text;
};

/// Whether text can be the name of an attribute (a subset of XML 1.0 §2.3: ASCII letters, digits, "-", "_", "." and
/// one
/// ":" between other characters).
bool isXmlName(const QString &name);

} // namespace Svg
