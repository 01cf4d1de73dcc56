// Sizes of texts whose letters become others, and those that they had.

#include <text/core/magnification.h>

#include <QtTest/QtTest>

using text::Magnification;

class TestMagnification : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void drawingStaysAsLargeAsItLooks();
    void widthDecides();
    void everySizeComesBackToTheBit();
    void sizeComesBackAfterAnotherMagnification();
    void longHistoriesAreForgotten();
};

void TestMagnification::drawingStaysAsLargeAsItLooks()
{
    Magnification magnification;
    QCOMPARE(magnification.sizeFor({50, 20}, {100, 40}, {200, 80}), QSizeF(100, 40));
    QCOMPARE(magnification.sizeFor({100, 40}, {50, 20}, {25, 10}), QSizeF(50, 20));
}

void TestMagnification::widthDecides()
{
    Magnification magnification;
    QCOMPARE(magnification.sizeFor({50, 20}, {100, 40}, {200, 10}), QSizeF(100, 40));
}

/// Widths and their thirds, sevenths and elevenths: quotients that are none of a binary number.
void TestMagnification::everySizeComesBackToTheBit()
{
    for (int start = 1; start < 500; ++start) {
        Magnification magnification;
        const QVector<QSizeF> drawings{{99.7, 23.4}, {33.1, 70.2}, {start / 7.0, 23.4}, {start / 11.0, 46.8}};
        QVector<QSizeF> sizes{{start / 3.0, start / 7.0}};
        for (int i = 1; i < drawings.size(); ++i)
            sizes.append(magnification.sizeFor(drawings[i], drawings[i - 1], sizes.last()));
        QSizeF size = sizes.last();
        for (int i = drawings.size() - 2; i >= 0; --i) {
            size = magnification.sizeFor(drawings[i], drawings[i + 1], size);
            QVERIFY2(size.width() == sizes[i].width() && size.height() == sizes[i].height(),
                     qPrintable(QString::number(start)));
        }
    }
}

/// As undo goes through a change of the letters, one of the size, and another one of the letters.
void TestMagnification::sizeComesBackAfterAnotherMagnification()
{
    for (int start = 1; start < 500; ++start) {
        Magnification magnification;
        const QSizeF first(99.7, 23.4);
        const QSizeF second(33.1, 70.2);
        const QSizeF original(start / 3.0, start / 7.0);
        const QSizeF small = magnification.sizeFor(second, first, original);
        const QSizeF large = small * 1.7;
        const QSizeF largest = magnification.sizeFor(first, second, large);
        const QSizeF largeAgain = magnification.sizeFor(second, first, largest);
        QVERIFY(largeAgain.width() == large.width() && largeAgain.height() == large.height());
        const QSizeF originalAgain = magnification.sizeFor(first, second, small);
        QVERIFY(originalAgain.width() == original.width() && originalAgain.height() == original.height());
    }
}

void TestMagnification::longHistoriesAreForgotten()
{
    Magnification magnification;
    magnification.sizeFor({50, 20}, {100, 40}, {200, 10});
    for (int i = 1; i < 1000; ++i)
        magnification.sizeFor({1.0 + i, 20}, {100, 40}, {300, 120});
    // Not (200, 10), which only memory knows.
    QCOMPARE(magnification.sizeFor({100, 40}, {50, 20}, {100, 40}), QSizeF(200, 80));
}

QTEST_MAIN(TestMagnification)
#include "test_magnification.moc"
