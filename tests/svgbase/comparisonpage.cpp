#include "svgbase/comparisonpage.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace {

const QString head = QStringLiteral(
    "<!DOCTYPE html><meta charset='utf-8'><title>Where drawings differ</title><style>body{font-family:sans-serif}"
    "img{border:1px solid #999;background:repeating-conic-gradient(#fff 0 25%,#ddd 0 50%) 0/16px 16px}"
    "td{padding:6px;vertical-align:top}</style><h1>Where drawings differ from those of Qt's SVG module</h1>"
    "<table><tr><th>case<th>this library<th>Qt's SVG module<th>the rule that decides");

} // namespace

bool ComparisonPage::add(const QString &name, const QImage &own, const QImage &peer, const ComparisonRule &rule)
{
    ++m_count;
    m_rows += QStringLiteral("<tr><td>%1<td><img src='%1.own.png' alt=''><td><img src='%1.peer.png' alt=''>"
                             "<td><b>%2</b><br>%3\n")
                  .arg(name, rule.source.toHtmlEscaped(), rule.text.toHtmlEscaped());
    const QDir folder(m_folder);
    return folder.mkpath(QStringLiteral(".")) && own.save(folder.filePath(name + QStringLiteral(".own.png"))) &&
           peer.save(folder.filePath(name + QStringLiteral(".peer.png")));
}

bool ComparisonPage::write() const
{
    QFile file(QDir(m_folder).filePath(QStringLiteral("index.html")));
    const QByteArray page = (head + m_rows + QStringLiteral("</table>\n")).toUtf8();
    return file.open(QIODevice::WriteOnly) && file.write(page) == page.size();
}
