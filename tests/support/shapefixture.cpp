#include <support/shapefixture.h>

#include <framework/cundoredo.h>

namespace support {

QString svgText(const QString &viewBox, const QString &content)
{
    const QString box = viewBox.isEmpty() ? QString() : QStringLiteral(" viewBox='%1'").arg(viewBox);
    return QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg'%1>%2</svg>").arg(box, content);
}

QString twoPointTemplate()
{
    return svgText("0 0 100 50", "<rect id='body' x='0' y='0' width='100' height='50'/>"
                                 "<rect id='control_1' x='10' y='20' width='8' height='8'/>"
                                 "<rect id='control_2' x='60' y='30' width='8' height='8'/>");
}

QString controlPointsText(int count)
{
    QString text;
    for (int i = 1; i <= count; ++i)
        text += QStringLiteral("<rect id='control_%1' x='%2' y='0' width='8' height='8'/>").arg(i).arg(10 * i);
    return text;
}

QUndoStack &undoStack()
{
    return *CUndoRedo::GetInstance()->stack();
}

ShapeFixture::FreshHost::FreshHost(double zoom)
{
    recording::resetSvg();
    recording::resetFramework();
    recording::framework().zoomRate = zoom;
}

ShapeFixture::ShapeFixture(const QString &templateText, int type, double zoom)
    : freshHost(zoom)
    , page(&document)
    , shape(object.makeCore(templateText, type))
{
    document.zoom = zoom;
    recording::framework().currentDocument = &document;
    object.SetPage(&page);
    scene.addItem(&object);
    recording::clear();
}

ShapeFixture::~ShapeFixture()
{
    recording::resetFramework(); // undo commands refer to the shape
}

void ShapeFixture::load()
{
    shape->loadSVG(false);
    if (!placed)
        object.place(QRectF(QPointF(0, 0), shape->document->viewBox().size()));
    object.createFinished = true;
    recording::clear();
}

void ShapeFixture::place(QRectF rect)
{
    placed = true;
    object.place(rect);
}

void ShapeFixture::select()
{
    shape->document->setSelectionState(1);
    recording::clear();
}

} // namespace support
