// A sound shape, and copies of it with one fault each.

#include <shapekit/shape.h>

#include <svgbase/qzesvgtinydocument.h>

#include <limits>

using namespace shapekit;

namespace {

const Text holeText("Hole", "Loch");
const Text germanText(Words{{QStringLiteral("de"), QStringLiteral("Loch")}, {QStringLiteral("en"), QString()}});

const QString soundTemplate =
    QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 120 80'>\n"
                   "<path id='figure' fill='#d3e4fd' stroke='#3f63a8' stroke-width='2' stroke-linejoin='round' "
                   "d='M1 79L30 1H90L119 79Z'/>\n"
                   "<rect id='control_1' x='26' y='4' width='8' height='8' y_move='0' y_follows='start'/></svg>");

class Sound : public ShapeOfType<301>
{
public:
    using ShapeOfType::ShapeOfType;

protected:
    QRectF range(int) override { return between({8, 8}, {width() / 2, 8}); }
    void draw() override { setPath("figure", figure(point(1).x())); }
    PathText figure(double left) const
    {
        const QRectF box = frame();
        PathText path;
        path.polygon({box.bottomLeft(), {left, box.top()}, {width() - left, box.top()}, box.bottomRight()});
        if (hole)
            path.ellipse(QRectF(box.center() - QPointF(4, 4), QSizeF(8, 8)));
        return path;
    }
    Switch hole{this, holeText, false};
};

class DrawsNothing : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override { setPath("figure", PathText()); }
};

class DividesByZero : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override
    {
        const bool isAtTheEnd = point(1).x() >= width() / 2;
        setPath("figure", figure(isAtTheEnd ? std::numeric_limits<double>::quiet_NaN() : point(1).x()));
    }
};

class Escapes : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override { setPath("figure", figure(point(1).x() < 20 ? -20 * width() : point(1).x())); }
};

class StandsBesideTheMouse : public Sound
{
public:
    using Sound::Sound;

protected:
    QRectF range(int) override { return between({8, 8}, {1000, 8}); }
    QPointF settled(int, QPointF centre) override { return {std::min(width() - 8, 8 + (centre.x() - 8) * 0.7), 8}; }
    void draw() override { setPath("figure", figure(std::min(point(1).x(), width() / 2))); }
};

class IgnoresItsPoint : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override { setPath("figure", figure(width() / 4)); }
};

class Remembers : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override { setPath("figure", figure(point(1).x() + 0.25 * drawings++)); }

private:
    int drawings = 0;
};

class DiffersFromItsTemplate : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override { setPath("figure", PathText().roundedRectangle(frame().adjusted(10, 10, -10, -10), 5)); }
};

class ForgetsItsProperty : public Sound
{
public:
    using Sound::Sound;

protected:
    void saveValues(QDataStream &) override {}
    void loadValues(QDataStream &) override {}
};

class CannotBeUndone : public Sound
{
public:
    using Sound::Sound;
    bool setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo) override
    {
        return Sound::setInnerProperty(propId, in, record, addUndo && propId != hole.id());
    }
};

class HasNoEnglish : public Sound
{
public:
    using Sound::Sound;

private:
    Switch loch{this, germanText, false};
};

class LosesMemory : public Sound
{
public:
    explicit LosesMemory(CSVGObj *owner)
        : Sound(owner)
        , m_lost(new char[2000])
    {
        m_lost[0] = 'x';
    }

private:
    char *m_lost;
};

class UsesAnUnknownNode : public Sound
{
public:
    using Sound::Sound;

protected:
    void draw() override
    {
        Sound::draw();
        set("figur", "opacity", 1);
    }
};

template<class Core> Kind kindNamed(const char *name)
{
    Kind kind = kindOf<Core>(QString::fromLatin1(name), inEnglishAndGerman(name, name));
    kind.templateText = soundTemplate;
    kind.idPrefix.clear();
    return kind;
}

} // namespace

QVector<Kind> shapekit::pluginKinds()
{
    return {kindNamed<Sound>("sound"),
            kindNamed<DrawsNothing>("nothing"),
            kindNamed<DividesByZero>("notfinite"),
            kindNamed<Escapes>("escaping"),
            kindNamed<StandsBesideTheMouse>("beside"),
            kindNamed<IgnoresItsPoint>("ignoring"),
            kindNamed<Remembers>("remembering"),
            kindNamed<DiffersFromItsTemplate>("differing"),
            kindNamed<ForgetsItsProperty>("forgetting"),
            kindNamed<CannotBeUndone>("undoless"),
            kindNamed<HasNoEnglish>("german"),
            kindNamed<LosesMemory>("leaking"),
            kindNamed<UsesAnUnknownNode>("unknown")};
}
