#include <pagehost/preview.h>
#include <pagehost/style.h>

#include "framework/editor.h"

#include <QtCore/QBuffer>

namespace {

class StyleStep : public CWbUndoCmd
{
public:
    void undo() override {}
    void redo() override {}
};

/// Answers for pen and fill as shapes do: describes each property on a stream, takes list entries by their number,
/// pushes its own steps, and writes a 0 over the value that it took.
class StyledObject : public TestObject
{
public:
    bool GetAttribute(int id, QDataStream &out) override
    {
        if (id == missing || id < 5002 || id > 5005)
            return TestObject::GetAttribute(id, out);
        const bool isList = id == 5003 || id == 5004;
        out << qint32(id) << qint32(isList ? 1 : 2) << QStringLiteral("IDS_NAME") << true;
        if (id == 5002)
            out << color;
        else if (id == 5005)
            out << fill;
        else if (id == 5003)
            out << qint32(6) << style << qint32(2) << QString() << QPixmap();
        else
            out << qint32(8) << width - 1 << qint32(0) << QStringLiteral("1") << QStringLiteral("2");
        return true;
    }
    bool SetAttribute(int id, QDataStream &in, bool record) override
    {
        if (id == missing || id < 5002 || id > 5005)
            return TestObject::SetAttribute(id, in, record);
        recorded.append(record);
        if (id == 5002) {
            in >> color;
        } else if (id == 5003) {
            in >> style;
        } else if (id == 5004) {
            in >> width;
            ++width;
        } else {
            in >> fill;
        }
        CUndoRedo::GetInstance()->push(new StyleStep);
        in.device()->reset();
        in << qint32(0);
        return in.status() == QDataStream::Ok;
    }

    QColor color = Qt::black;
    qint32 style = Qt::DashLine;
    qint32 width = 3;
    QBrush fill = QBrush(QColor(Qt::yellow));
    int missing = 0;
    QVector<bool> recorded;
};

/// Has a look in its attribute map as shapes do: the fill comes out as a brush and is taken as a colour.
class MappedObject : public TestObject
{
public:
    bool getAllAttributes(QMap<QString, QVariant> &map) override
    {
        TestObject::getAllAttributes(map);
        map[QStringLiteral("pen_width")] = width;
        map[QStringLiteral("fill_color")] = fill;
        return true;
    }
    bool setAllAttributes(const QMap<QString, QVariant> &map, bool) override
    {
        const int newWidth = map.value(QStringLiteral("pen_width"), width).toInt();
        const QBrush newFill(map.value(QStringLiteral("fill_color"), fill.color()).value<QColor>());
        const bool changes = newWidth != width || newFill != fill;
        width = newWidth;
        fill = newFill;
        return changes;
    }
    bool SavePropertyForPlayback(QDataStream &out) override
    {
        out << width << fill;
        return true;
    }
    bool LoadPropertyForPlayback(QDataStream &in) override
    {
        in >> width >> fill;
        return true;
    }

    int width = 2;
    QBrush fill = QBrush(QColor(Qt::yellow));
};

} // namespace

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void settersReachTheObject();
    void severalObjectsAreOneStep();
    void objectsWithoutThePropertyLeaveNoStep();
    void widthBelowOneIsRefused();
    void styleIsReadBack();
    void missingPropertiesAreToldApart_data();
    void missingPropertiesAreToldApart();
    void nonsenseDescriptionIsNoStyle();
    void paintOfAnUnknownKindIsNoStyle();
    void styleMapHasTheLookAlone();
    void styleMapIsGivenAsOneStep();
    void takenBackStyleIsExactlyWhatItWas();
    void styleThatChangesNothingLeavesNoStep();
    void previewLeavesNoTrace();
    void nextPreviewTakesThePlaceOfTheOneBefore();
    void stepsBesideAPreviewReachTheHistory();
};

void TestStyle::settersReachTheObject()
{
    StyledObject object;
    QVERIFY(pagehost::setPenColor({&object}, QColor(1, 2, 3, 4)));
    QVERIFY(pagehost::setPenStyle({&object}, Qt::DotLine));
    QVERIFY(pagehost::setPenWidth({&object}, 5));
    QVERIFY(pagehost::setFill({&object}, QColor(5, 6, 7, 8)));
    QCOMPARE(object.color, QColor(1, 2, 3, 4));
    QCOMPARE(object.style, qint32(Qt::DotLine));
    QCOMPARE(object.width, 5);
    QCOMPARE(object.fill, QBrush(QColor(5, 6, 7, 8)));
    QCOMPARE(object.recorded, QVector<bool>(4, true));
    QCOMPARE(undoStack()->count(), 4);
}

void TestStyle::severalObjectsAreOneStep()
{
    StyledObject one;
    StyledObject other;
    QVERIFY(pagehost::setPenColor({&one, &other}, Qt::red));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_NAME")});
    QCOMPARE(undoStack()->command(0)->childCount(), 2);
    QCOMPARE(one.color, QColor(Qt::red));
    QCOMPARE(other.color, QColor(Qt::red));
}

void TestStyle::objectsWithoutThePropertyLeaveNoStep()
{
    TestObject plain;
    QVERIFY(!pagehost::setPenColor({&plain}, Qt::red));
    QVERIFY(!pagehost::setPenColor({}, Qt::red));
    QCOMPARE(undoStack()->count(), 0);
    StyledObject styled;
    QVERIFY(pagehost::setPenColor({&plain, &styled}, Qt::red));
    QCOMPARE(undoStack()->count(), 1);
}

void TestStyle::widthBelowOneIsRefused()
{
    StyledObject object;
    QVERIFY(!pagehost::setPenWidth({&object}, 0));
    QCOMPARE(object.width, 3);
    QCOMPARE(undoStack()->count(), 0);
}

void TestStyle::styleIsReadBack()
{
    StyledObject object;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QVERIFY(style.hasPenColor && style.hasPenStyle && style.hasPenWidth && style.hasFill);
    QCOMPARE(style.penColor, QColor(Qt::black));
    QCOMPARE(style.penStyle, Qt::DashLine);
    QCOMPARE(style.penWidth, 3);
    QCOMPARE(style.maxPenWidth, 8);
    QCOMPARE(style.fill, QBrush(QColor(Qt::yellow)));
}

void TestStyle::missingPropertiesAreToldApart_data()
{
    QTest::addColumn<int>("missing");
    for (int id = 5002; id <= 5005; ++id)
        QTest::addRow("property %d", id) << id;
}

void TestStyle::missingPropertiesAreToldApart()
{
    QFETCH(int, missing);
    StyledObject object;
    object.missing = missing;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QCOMPARE(style.hasPenColor, missing != 5002);
    QCOMPARE(style.hasPenStyle, missing != 5003);
    QCOMPARE(style.hasPenWidth, missing != 5004);
    QCOMPARE(style.hasFill, missing != 5005);
}

void TestStyle::nonsenseDescriptionIsNoStyle()
{
    class Nonsense : public TestObject
    {
    public:
        bool GetAttribute(int, QDataStream &out) override
        {
            out << qint32(77);
            return true;
        }
    };
    Nonsense object;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QVERIFY(!style.hasPenColor && !style.hasPenStyle && !style.hasPenWidth && !style.hasFill);
}

void TestStyle::paintOfAnUnknownKindIsNoStyle()
{
    class Strange : public TestObject
    {
    public:
        bool GetAttribute(int id, QDataStream &out) override
        {
            out << qint32(id) << qint32(2) << QStringLiteral("IDS_NAME") << true;
            QByteArray paint = id == pagehost::FillProperty ? QByteArray("\1", 1) : QByteArray();
            paint += QByteArray("\x06\xff\xff\0\0\0\0\0\0\0\0", 11);
            paint += id == pagehost::FillProperty ? QByteArray(72, '\0') : QByteArray();
            out.writeRawData(paint.constData(), paint.size());
            return true;
        }
    };
    Strange object;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QVERIFY(!style.hasPenColor && !style.hasFill);
}

void TestStyle::styleMapHasTheLookAlone()
{
    MappedObject object;
    const pagehost::StyleMap map = pagehost::styleMapOf(&object);
    const QStringList expected{QStringLiteral("fill_color"), QStringLiteral("pen_width")};
    QCOMPARE(QStringList(map.keys()), expected);
    QCOMPARE(map[QStringLiteral("pen_width")], QVariant(2));
    QCOMPARE(map[QStringLiteral("fill_color")], QVariant(QColor(Qt::yellow)));
    object.fill = Qt::NoBrush;
    QCOMPARE(pagehost::styleMapOf(&object).value(QStringLiteral("fill_color")), QVariant(QColor(Qt::transparent)));
}

void TestStyle::styleMapIsGivenAsOneStep()
{
    MappedObject one;
    MappedObject other;
    TestObject plain;
    const pagehost::StyleMap style{{QStringLiteral("pen_width"), 7},
                                   {QStringLiteral("fill_color"), QColor(1, 2, 3)}};
    QVERIFY(pagehost::setStyleMap({&one, &plain, &other}, style));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_UNDO_STYLE")});
    for (const MappedObject *object : {&one, &other}) {
        QCOMPARE(object->width, 7);
        QCOMPARE(object->fill, QBrush(QColor(1, 2, 3)));
    }
}

void TestStyle::takenBackStyleIsExactlyWhatItWas()
{
    MappedObject object;
    QLinearGradient gradient(0, 0, 1, 1);
    gradient.setColorAt(1, Qt::red);
    object.fill = gradient;
    QVERIFY(pagehost::setStyleMap({&object}, {{QStringLiteral("fill_color"), QColor(1, 2, 3)}}));
    undoStack()->undo();
    QCOMPARE(object.fill, QBrush(gradient));
    undoStack()->redo();
    QCOMPARE(object.fill, QBrush(QColor(1, 2, 3)));
}

void TestStyle::styleThatChangesNothingLeavesNoStep()
{
    MappedObject object;
    QVERIFY(!pagehost::setStyleMap({&object}, pagehost::styleMapOf(&object)));
    QVERIFY(!pagehost::setStyleMap({}, {{QStringLiteral("pen_width"), 7}}));
    QCOMPARE(undoStack()->count(), 0);
}

void TestStyle::previewLeavesNoTrace()
{
    MappedObject object;
    QVERIFY(pagehost::setStyleMap({&object}, {{QStringLiteral("pen_width"), 5}}));
    undoStack()->undo();
    {
        pagehost::Preview preview;
        preview.show([&] { pagehost::setStyleMap({&object}, {{QStringLiteral("pen_width"), 7}}); });
        QCOMPARE(object.width, 7);
        QVERIFY(preview.isShowing());
    }
    QCOMPARE(object.width, 2);
    QCOMPARE(undoStack()->count(), 1);
    QVERIFY(undoStack()->canRedo());
}

void TestStyle::nextPreviewTakesThePlaceOfTheOneBefore()
{
    MappedObject object;
    pagehost::Preview preview;
    preview.show([&] { pagehost::setStyleMap({&object}, {{QStringLiteral("pen_width"), 7}}); });
    preview.show([&] { pagehost::setStyleMap({&object}, {{QStringLiteral("fill_color"), QColor(1, 2, 3)}}); });
    QCOMPARE(object.width, 2);
    QCOMPARE(object.fill, QBrush(QColor(1, 2, 3)));
    preview.takeBack();
    QVERIFY(!preview.isShowing());
    QCOMPARE(object.fill, QBrush(QColor(Qt::yellow)));
}

void TestStyle::stepsBesideAPreviewReachTheHistory()
{
    MappedObject shown;
    MappedObject changed;
    pagehost::Preview preview;
    preview.show([&] { pagehost::setStyleMap({&shown}, {{QStringLiteral("pen_width"), 7}}); });
    QVERIFY(pagehost::setStyleMap({&changed}, {{QStringLiteral("pen_width"), 9}}));
    QCOMPARE(undoStack()->count(), 1);
    preview.takeBack();
    QCOMPARE(shown.width, 2);
    QCOMPARE(changed.width, 9);
}

QTEST_MAIN(TestStyle)
#include "test_style.moc"
