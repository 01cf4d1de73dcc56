// The page as it is seen on a second screen.

#include <board/boarddriver.h>

#include <presenting/audiencewindow.h>

#include <pagehost/page.h>

#include <QtTest/QtTest>

using namespace boardtest;

class TestAudienceView : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { useOwnFolders(); }
    void noLineIsSeenBesideThePage();
    void restOfAnotherScreenIsBlack();
};

namespace {

/// At the left, above, at the right, below. Of a page of 1280 × 720.
QVector<QColor> sidesOn(const QSize &screen)
{
    BoardDriver board;
    board::AudienceView view;
    view.resize(screen);
    view.setPage(&board.page());
    view.show();
    QCoreApplication::processEvents();
    const QImage picture = view.viewport()->grab().toImage();
    view.setPage(nullptr);
    if (picture.size() != screen)
        return {};
    const QPoint middle = picture.rect().center();
    return {picture.pixelColor(0, middle.y()), picture.pixelColor(middle.x(), 0),
            picture.pixelColor(screen.width() - 1, middle.y()),
            picture.pixelColor(middle.x(), screen.height() - 1)};
}

} // namespace

/// The page leaves 0.67 pixels of the width.
void TestAudienceView::noLineIsSeenBesideThePage()
{
    QCOMPARE(sidesOn({1366, 768}), QVector<QColor>(4, Qt::white));
}

void TestAudienceView::restOfAnotherScreenIsBlack()
{
    QCOMPARE(sidesOn({1360, 768}), (QVector<QColor>{Qt::white, Qt::black, Qt::white, Qt::black}));
}

QTEST_MAIN(TestAudienceView)
#include "test_audienceview.moc"
