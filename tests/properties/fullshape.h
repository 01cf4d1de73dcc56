#pragma once

#include <support/shapefixture.h>
#include <support/streams.h>

/// A loaded shape with all four common properties.
class FullShape : public support::ShapeFixture
{
public:
    FullShape()
        : support::ShapeFixture(support::twoPointTemplate())
    {
        shape->propPenStyleEnabled = true;
        shape->propPenWidthEnabled = true;
        shape->propFillEnabled = true;
        load();
        shape->document->setAllStrokeColor(Qt::red);
        shape->document->setAllStrokeStyle(Qt::DashLine);
        shape->document->setAllStrokeWidth(3);
        shape->document->setAllFillBrush(QBrush(Qt::blue, Qt::Dense4Pattern));
        recording::clear();
    }

    QByteArray inner(int propId)
    {
        support::Output out;
        return shape->CSVGBase::getInnerProperty(propId, out) ? out.bytes() : QByteArray("refused");
    }

    QByteArray attribute(int propId)
    {
        support::Output out;
        return shape->GetAttribute(propId, out) ? out.bytes() : QByteArray("refused");
    }
};
