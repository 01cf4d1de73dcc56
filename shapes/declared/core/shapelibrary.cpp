#include <declared/core/shapelibrary.h>

#include <declared/reader/shapereader.h>

namespace declared {

namespace {

constexpr char blankText[] = "<svg xmlns='http://www.w3.org/2000/svg' xmlns:shape='urn:gliololok:shape' "
                             "viewBox='0 0 100 100'><shape:about name='Unknown shape'/><rect id='figure' "
                             "width='100' height='100' fill='none' stroke='#888'/></svg>";

} // namespace

ShapeLibrary::ShapeLibrary()
    : m_blank(std::make_unique<ShapeKind>(readShape(blankText, QStringLiteral("unknown"))))
{
}

/// Kinds of one text are one.
const ShapeKind *ShapeLibrary::add(std::unique_ptr<ShapeKind> kind)
{
    const ShapeKind *&known = m_byText[kind->declaration().hash];
    if (!known) {
        known = kind.get();
        m_kinds.push_back(std::move(kind));
    }
    return known;
}

void ShapeLibrary::offer(std::vector<std::unique_ptr<ShapeKind>> kinds)
{
    m_offered.clear();
    for (auto &kind : kinds)
        m_offered.append(add(std::move(kind)));
}

const ShapeKind *ShapeLibrary::offered(const QString &kindId) const
{
    for (const ShapeKind *kind : m_offered)
        if (kind->kind().id() == kindId)
            return kind;
    return nullptr;
}

const ShapeKind *ShapeLibrary::remember(const QByteArray &text, const QString &name)
{
    const ShapeKind *known = withText(hashOf(text));
    if (known)
        return known;
    const SharedDeclaration declaration = readShape(text, name);
    // Only installed files succeed coded shapes.
    if (!declaration || declaration->isSuccessor())
        return nullptr;
    const ShapeKind *kind = withText(declaration->hash);
    if (kind)
        return kind;
    kind = add(std::make_unique<ShapeKind>(declaration));
    m_remembered.append(kind);
    if (m_listener)
        m_listener();
    return kind;
}

} // namespace declared
