#include <declared/core/declaredobject.h>

#include <declared/core/declaredshape.h>
#include <declared/core/savedtext.h>

#include <pagehost/objectplugin.h>
#include <svgobj/csvgbaseundocmd.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtCore/QMap>

#include <algorithm>

namespace declared {

namespace {

const QLatin1String savedKey(declaredKey);
const QLatin1String textMember("text");
/// Localisation key of the library's host.
const QString updateText = QStringLiteral("IDS_UNDO_SHAPE_VERSION");

} // namespace

DeclaredObject::DeclaredObject(const std::shared_ptr<ShapeLibrary> &library, const ShapeKind &kind)
    : ShapeObject(kind.kind())
    , m_library(library)
    , m_kind(&kind)
{
    library->add(this);
    declaredCore()->setReplay([this](int actionId, QDataStream &in) { return DoPlaybackActionEx(actionId, in); });
}

/// Cores go before the library, which has what they are made of.
DeclaredObject::~DeclaredObject()
{
    m_library->remove(this);
    delete svgBase;
    svgBase = nullptr;
    m_former.clear();
}

DeclaredShape *DeclaredObject::declaredCore() const
{
    return static_cast<DeclaredShape *>(svgBase);
}

bool DeclaredObject::isDragged() const
{
    return svgBase && (declaredCore()->isDragged() || (scene() && !createFinished));
}

/// The present core is that of the present kind, whatever number the data tell.
bool DeclaredObject::createSVGBase(int type, bool initGlobals)
{
    const bool isDeclaredType = type == DeclaredShape::pageFilledType || type == DeclaredShape::shapeFilledType;
    if (svgBase && (isDeclaredType || svgBase->getSVGType() == type))
        return true;
    delete svgBase;
    svgBase = nullptr;
    Q_UNUSED(initGlobals)
    return false;
}

const ShapeKind *DeclaredObject::kindOf(const QJsonObject &saved) const
{
    if (const ShapeKind *kind = m_library->withText(saved.value(textMember).toString()))
        return kind;
    const QByteArray text = fromInlined(saved.value(QLatin1String("inline")).toString());
    const ShapeKind *brought = text.isEmpty() ? nullptr : m_library->remember(text);
    if (brought && brought->declaration().hash == saved.value(textMember).toString())
        return brought;
    if (const ShapeKind *other =
            m_library->offered(QStringLiteral("declared.") + saved.value(QLatin1String("id")).toString()))
        return other;
    return m_kind == &m_library->blank() ? nullptr : m_kind;
}

bool DeclaredObject::makeAs(const QJsonObject &saved)
{
    const ShapeKind *kind = kindOf(saved);
    if (!kind)
        return false;
    if (kind != m_kind || !svgBase) {
        putCoreOf(*kind);
        dropUnusedCores(m_former.size());
    }
    return true;
}

bool DeclaredObject::load(QDataStream &in)
{
    return makeAs(savedAhead(in)) && ShapeObject::load(in);
}

bool DeclaredObject::loadJson(QJsonObject &object)
{
    return makeAs(object.value(savedKey).toObject()) && ShapeObject::loadJson(object);
}

void DeclaredObject::putCoreOf(const ShapeKind &kind)
{
    DeclaredShape *former = declaredCore();
    std::unique_ptr<DeclaredShape> core = takeFormerCore(kind);
    const bool isNew = !core;
    if (isNew)
        core = std::make_unique<DeclaredShape>(this, kind);
    core->setKind(kind.kind());
    core->setTextInlined(!m_hostKeepsTexts);
    core->setReplay([this](int actionId, QDataStream &in) { return DoPlaybackActionEx(actionId, in); });
    svgBase = core.release();
    if (former) {
        former->retire();
        m_former.push_back({&former->shapeKind(), std::unique_ptr<DeclaredShape>(former)});
    }
    m_kind = &kind;
    if (isNew)
        svgBase->loadSVG(false);
}

void DeclaredObject::play()
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << true;
    QDataStream in(bytes);
    svgBase->SetSpecialProperty(pagehost::AnimationRuns, in, false);
}

std::unique_ptr<DeclaredShape> DeclaredObject::takeFormerCore(const ShapeKind &kind)
{
    const auto found = std::find_if(m_former.begin(), m_former.end(),
                                    [&](const FormerCore &former) { return former.kind == &kind; });
    if (found == m_former.end())
        return nullptr;
    std::unique_ptr<DeclaredShape> core = std::move(found->core);
    m_former.erase(found);
    core->resume();
    return core;
}

/// Of the first ones.
void DeclaredObject::dropUnusedCores(size_t count)
{
    const auto isUnused = [](const FormerCore &former) { return !former.core->mayHaveUndoSteps(); };
    const auto end = m_former.begin() + std::ptrdiff_t(count);
    m_former.erase(std::remove_if(m_former.begin(), end, isUnused), end);
}

void DeclaredObject::become(const ShapeKind &kind)
{
    if (&kind == m_kind || !svgBase)
        return;
    DeclaredShape *former = declaredCore();
    const bool isPlaying = former->isAnimating();
    putCoreOf(kind);
    declaredCore()->takeOver(*former);
    if (isPlaying)
        play();
    // The last one may be at work.
    dropUnusedCores(m_former.size() - 1);
    showChange();
}

void DeclaredObject::showChange()
{
    svgBase->updateOutlineRegion();
    notifyOutlineRegionChanged();
    svgBase->invalidate();
}

QByteArray DeclaredObject::state() const
{
    QJsonObject state;
    svgBase->saveJson(state);
    return QJsonDocument(state).toJson(QJsonDocument::Compact);
}

bool DeclaredObject::takeState(QDataStream &in)
{
    QByteArray bytes;
    in >> bytes;
    QJsonObject state = QJsonDocument::fromJson(bytes).object();
    const ShapeKind *kind = m_library->withText(state.value(savedKey).toObject().value(textMember).toString());
    if (!kind || !svgBase)
        return false;
    if (kind != m_kind)
        putCoreOf(*kind);
    svgBase->loadJson(state);
    showChange();
    return true;
}

bool DeclaredObject::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    return actionId == DeclaredShape::versionAction ? takeState(in) : ShapeObject::DoPlaybackActionEx(actionId, in);
}

const ShapeKind *DeclaredObject::presentVersion() const
{
    const ShapeKind *present = m_library->offered(m_kind->kind().id());
    return present == m_kind ? nullptr : present;
}

void DeclaredObject::update(bool record)
{
    const ShapeKind *present = presentVersion();
    if (!present || !svgBase)
        return;
    DeclaredShape *former = declaredCore();
    const auto bytesOf = [](const QByteArray &state) {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << state;
        return bytes;
    };
    const QByteArray before = bytesOf(state());
    become(*present);
    const QByteArray after = bytesOf(state());
    auto *command = new CSVGBaseUndoCmd(former, DeclaredShape::versionAction, nullptr, true);
    command->setDataBuffer(before, after);
    command->setText(updateText);
    former->noteUndoStep();
    svgBase->addUndoRedo(command);
    if (record)
        svgBase->RecordDataBuffer(after, DeclaredShape::versionAction);
}

bool DeclaredObject::GetSpecialProperty(int id, QDataStream &out)
{
    const Declaration &declaration = m_kind->declaration();
    // Successors of coded shapes save what those did, which names no text.
    if (id == pagehost::NeededTexts && !declaration.isSuccessor()) {
        out << QMap<QByteArray, QByteArray>{{declaration.hash.toLatin1(), declaration.text}};
        return true;
    }
    if (id != pagehost::IsPresentVersion)
        return ShapeObject::GetSpecialProperty(id, out);
    out << (presentVersion() == nullptr);
    return true;
}

bool DeclaredObject::SetSpecialProperty(int id, QDataStream &in, bool record)
{
    if (id == pagehost::KnownTexts) {
        learn(in);
        return true;
    }
    if (id != pagehost::IsPresentVersion)
        return ShapeObject::SetSpecialProperty(id, in, record);
    bool isWanted = false;
    in >> isWanted;
    if (isWanted)
        update(record);
    return true;
}

void DeclaredObject::learn(QDataStream &in)
{
    QMap<QByteArray, QByteArray> texts;
    in >> texts;
    m_hostKeepsTexts = true;
    if (svgBase)
        declaredCore()->setTextInlined(false);
    for (const QByteArray &text : qAsConst(texts))
        m_library->remember(text);
}

} // namespace declared
