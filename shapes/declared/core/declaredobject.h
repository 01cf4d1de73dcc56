#pragma once

#include <declared/core/shapelibrary.h>

#include <shapekit/shapeobject.h>

#include <QtCore/QJsonObject>

#include <memory>
#include <vector>

namespace declared {

class DeclaredShape;

/// The page object of a declared shape. What it is made of may change: by the data that it reads, by its file, or
/// by the user.
///
/// Undo steps refer to the core that made them. A core that is replaced therefore stays, and hands what is replayed
/// to the present one.
class DeclaredObject : public shapekit::ShapeObject
{
public:
    DeclaredObject(const std::shared_ptr<ShapeLibrary> &library, const ShapeKind &kind);
    ~DeclaredObject() override;

    const ShapeKind &shapeKind() const { return *m_kind; }
    /// Null after damaged data.
    DeclaredShape *declaredCore() const;
    /// Of cores that the object had before, and that undo steps may refer to.
    int formerCoreCount() const { return int(m_former.size()); }
    /// Whether the user is drawing the object or dragging one of its points.
    bool isDragged() const;
    /// Draws the object as another kind; points and properties stay, as far as that has them. Leaves no undo step.
    void become(const ShapeKind &kind);

    QString kindName() const override { return m_kind->kind().nameKey(); }
    bool createSVGBase(int type, bool initGlobals) override;
    /// The data name the text that the object is made of. False when that is unknown and nothing else is like it.
    bool load(QDataStream &in) override;
    bool loadJson(QJsonObject &object) override;
    bool DoPlaybackActionEx(int actionId, QDataStream &in) override;
    /// Texts and version of the shape, see pagehost::SpecialProperty.
    bool GetSpecialProperty(int id, QDataStream &out) override;
    bool SetSpecialProperty(int id, QDataStream &in, bool record) override;

private:
    struct FormerCore
    {
        const ShapeKind *kind;
        std::unique_ptr<DeclaredShape> core;
    };

    const ShapeKind *kindOf(const QJsonObject &saved) const;
    bool makeAs(const QJsonObject &saved);
    /// Puts a core of that kind in place of the present one, the one that it had before if there was one.
    void putCoreOf(const ShapeKind &kind);
    std::unique_ptr<DeclaredShape> takeFormerCore(const ShapeKind &kind);
    void dropUnusedCores(size_t count);
    void play();
    void learn(QDataStream &in);
    /// The present version of the shape's file; null when there is none or the object is of it.
    const ShapeKind *presentVersion() const;
    void update(bool record);
    QByteArray state() const;
    bool takeState(QDataStream &in);
    void showChange();

    std::shared_ptr<ShapeLibrary> m_library;
    const ShapeKind *m_kind;
    bool m_hostKeepsTexts = false;
    std::vector<FormerCore> m_former;
};

} // namespace declared
