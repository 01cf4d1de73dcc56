#include "clipboard/pdfpages.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QRegularExpression>
#include <QtCore/QStandardPaths>

#include <sys/resource.h>

#include <utility>

namespace board {

namespace {

const QString infoProgram = QStringLiteral("pdfinfo");
const QString drawingProgram = QStringLiteral("pdftocairo");

/// A process that may neither take all memory nor fill the disk.
class LimitedProcess : public QProcess
{
public:
    using QProcess::QProcess;

protected:
    /// Runs in the child between fork and exec.
    void setupChildProcess() override
    {
        limit(RLIMIT_AS, mostConverterMemory);
        limit(RLIMIT_FSIZE, largestConvertedPage);
    }

private:
    template<typename Resource> static void limit(Resource resource, qint64 value)
    {
        const rlimit most{rlim_t(value), rlim_t(value)};
        setrlimit(resource, &most);
    }
};

} // namespace

PdfPages::PdfPages(QObject *parent)
    : QObject(parent)
{
    m_limit.setSingleShot(true);
    m_limit.setInterval(longestConversion);
    connect(&m_limit, &QTimer::timeout, this, [this] { fail(PdfProblem::TooSlow); });
}

PdfPages::~PdfPages()
{
    stop();
}

void PdfPages::stop()
{
    m_limit.stop();
    m_drawings.clear();
    if (QProcess *process = std::exchange(m_process, nullptr)) {
        disconnect(process, nullptr, this, nullptr);
        process->kill();
        process->waitForFinished();
        process->deleteLater();
    }
    m_folder.reset();
}

void PdfPages::fail(PdfProblem problem)
{
    stop();
    Q_EMIT failed(problem);
}

void PdfPages::convert(const QString &file)
{
    stop();
    m_file = QFileInfo(file).absoluteFilePath();
    m_folder = std::make_unique<QTemporaryDir>();
    run(infoProgram, {m_file}, [this] { takeCount(); });
}

void PdfPages::run(const QString &program, const QStringList &arguments, const std::function<void()> &next)
{
    const QString path = QStandardPaths::findExecutable(program);
    if (path.isEmpty())
        return fail(PdfProblem::NoConverter);
    if (m_process)
        m_process->deleteLater();
    m_process = new LimitedProcess(this);
    connect(m_process, &QProcess::errorOccurred, this, [this](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            fail(PdfProblem::NoConverter);
    });
    connect(m_process, QOverload<int, QProcess::ExitStatus>::of(&QProcess::finished), this,
            [this, next](int code, QProcess::ExitStatus status) {
                if (code != 0 || status != QProcess::NormalExit)
                    fail(PdfProblem::Unreadable);
                else
                    next();
            });
    m_process->setStandardErrorFile(QProcess::nullDevice());
    m_limit.start();
    m_process->start(path, arguments, QIODevice::ReadOnly);
}

void PdfPages::takeCount()
{
    static const QRegularExpression pages(QStringLiteral("^Pages:\\s*(\\d+)"), QRegularExpression::MultilineOption);
    m_count = pages.match(QString::fromLatin1(m_process->readAllStandardOutput())).captured(1).toInt();
    if (m_count < 1)
        return fail(PdfProblem::Unreadable);
    if (m_count > mostPdfPages)
        return fail(PdfProblem::TooManyPages);
    convertNext();
}

void PdfPages::convertNext()
{
    const QString page = QString::number(m_drawings.size() + 1);
    run(drawingProgram,
        {QStringLiteral("-svg"), QStringLiteral("-f"), page, QStringLiteral("-l"), page, m_file,
         m_folder->filePath(QStringLiteral("page.svg"))},
        [this] { takePage(); });
}

void PdfPages::takePage()
{
    QFile page(m_folder->filePath(QStringLiteral("page.svg")));
    if (!page.open(QIODevice::ReadOnly) || page.size() > largestConvertedPage)
        return fail(PdfProblem::Unreadable);
    m_drawings.append(page.readAll());
    page.remove();
    if (m_drawings.size() < m_count)
        return convertNext();
    const QVector<QByteArray> drawings = m_drawings;
    stop();
    Q_EMIT converted(drawings);
}

} // namespace board
