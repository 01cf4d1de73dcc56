// The window that shows a shape while its author works on it.

#include "shape/previewwindow.h"

#include <checklist/states.h>

#include <svgobj/csvgobj.h>

#include <support/patience.h>

#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QUndoStack>

#include <memory>

using shapetool::PreviewWindow;

namespace {

QByteArray boxOf(int width)
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' viewBox='0 0 " +
           QByteArray::number(width) +
           " 40'>\n<shape:about name='Box'/>\n<shape:property name='soft' type='switch' value='no' "
           "title='Round'/>\n"
           "<rect id='figure' width='" +
           QByteArray::number(width) +
           "' height='40' fill='#ff0000' stroke='black' shape:width='{w}' "
           "shape:height='{h}' "
           "shape:rx='{soft ? 9 : 0}'/></svg>";
}

} // namespace

class TestPreview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void shapeIsShownInItsSize();
    void savedFileIsShownAtOnce();
    void faultyFileLeavesTheLastGoodShape();
    void missingFileIsToldAndAwaited();
    void answerIsAnUndoStepAndIsShownInTheState();

private:
    void save(const QByteArray &bytes);
    double shownWidth() const { return m_window->shape()->object().getClientRect().width(); }

    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<PreviewWindow> m_window;
};

void TestPreview::init()
{
    m_window.reset();
    m_path = m_folder.filePath(QStringLiteral("box.shape.svg"));
    save(boxOf(60));
    m_window = std::make_unique<PreviewWindow>(m_path);
}

/// Replaces the file, as editors do.
void TestPreview::save(const QByteArray &bytes)
{
    QSaveFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    QVERIFY(file.commit());
}

void TestPreview::shapeIsShownInItsSize()
{
    QVERIFY(m_window->shape());
    QCOMPARE(shownWidth(), 60.0);
    QCOMPARE(m_window->messages(), QString());
}

void TestPreview::savedFileIsShownAtOnce()
{
    save(boxOf(90));
    QTRY_COMPARE_WITH_TIMEOUT(shownWidth(), 90.0, support::patience);
    // The file that replaced the first one is followed, too.
    save(boxOf(120));
    QTRY_COMPARE_WITH_TIMEOUT(shownWidth(), 120.0, support::patience);
}

void TestPreview::faultyFileLeavesTheLastGoodShape()
{
    save(boxOf(90).replace("type='switch'", "type='swich'"));
    m_window->reload();
    QCOMPARE(shownWidth(), 60.0);
    QVERIFY2(m_window->messages().startsWith(m_path + QLatin1String(":3:")), qPrintable(m_window->messages()));
    save(boxOf(90));
    m_window->reload();
    QCOMPARE(shownWidth(), 90.0);
    QCOMPARE(m_window->messages(), QString());
}

void TestPreview::missingFileIsToldAndAwaited()
{
    QVERIFY(QFile::remove(m_path));
    m_window = std::make_unique<PreviewWindow>(m_path);
    QVERIFY(!m_window->shape());
    QVERIFY(m_window->messages().contains(QLatin1String("there is no ")));
    save(boxOf(60));
    QTRY_VERIFY_WITH_TIMEOUT(m_window->shape(), support::patience);
}

void TestPreview::answerIsAnUndoStepAndIsShownInTheState()
{
    auto *box = m_window->findChild<QCheckBox *>();
    QVERIFY(box);
    const auto *state = m_window->findChild<QPlainTextEdit *>();
    const QString before = state->toPlainText();
    box->click();
    QCOMPARE(m_window->shape()->undoStack().count(), 1);
    QCOMPARE(state->toPlainText(), QString::fromUtf8(checklist::savedJson(*m_window->shape())));
    QVERIFY(state->toPlainText() != before);
    m_window->shape()->undoStack().undo();
    QCOMPARE(state->toPlainText(), before);
}

QTEST_MAIN(TestPreview)
#include "test_preview.moc"
