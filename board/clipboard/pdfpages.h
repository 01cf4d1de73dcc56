#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QObject>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTimer>
#include <QtCore/QVector>

#include <functional>
#include <memory>

class QProcess;

namespace board {

/// Why the pages of a PDF could not be had.
enum class PdfProblem { NoConverter, Unreadable, TooManyPages, TooSlow };

/// Limits of the program that reads PDFs, which come from anywhere.
constexpr int mostPdfPages = 100;
constexpr int longestConversion = 30000;            ///< of a page, milliseconds
constexpr qint64 mostConverterMemory = 1LL << 30;   ///< bytes
constexpr qint64 largestConvertedPage = 64LL << 20; ///< bytes

/// Turns the pages of a PDF into SVG drawings, one after the other, in a process of its own ("pdfinfo" and
/// "pdftocairo"), which is stopped at the limits above.
class PdfPages : public QObject
{
    Q_OBJECT

public:
    explicit PdfPages(QObject *parent = nullptr);
    /// Stops.
    ~PdfPages() override;

    /// Ends with converted() or failed(); a conversion that is going on is given up.
    void convert(const QString &file);
    /// Of a page, milliseconds; longestConversion at first.
    void setTimeLimit(int milliseconds) { m_limit.setInterval(milliseconds); }
    bool isConverting() const { return m_process != nullptr; }
    void stop();

Q_SIGNALS:
    void converted(const QVector<QByteArray> &drawings);
    void failed(board::PdfProblem problem);

private:
    void run(const QString &program, const QStringList &arguments, const std::function<void()> &next);
    void takeCount();
    void convertNext();
    void takePage();
    void fail(PdfProblem problem);

    QString m_file;
    std::unique_ptr<QTemporaryDir> m_folder;
    QProcess *m_process = nullptr;
    QTimer m_limit;
    int m_count = 0;
    QVector<QByteArray> m_drawings;
};

} // namespace board
