#pragma once

#include "core/documentsearch.h"
#include "core/onceperturn.h"

#include <QtCore/QObject>

#include <optional>

namespace board {

class Commands;
class FindBar;
class PageView;
class Workspace;

/// Finds texts of the document for the find bar, shows them on their pages, and replaces them.
///
/// A match that is shown has its object selected and its text marked. While the user types what to find, the search
/// begins anew at the place where he was.
class Finding : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    Finding(const Workspace *workspace, Commands *commands, PageView *view, FindBar *bar, QObject *parent);

private:
    /// Where a search begins: at a text, else at the beginning of a page.
    struct Place
    {
        const pagehost::Page *page = nullptr;
        const CBaseObject *object = nullptr;
        qint32 propertyId = 0;
        int start = 0;
    };

    void open(bool withReplacing);
    void close();
    void search();
    void follow();
    void findAgain();
    void step(bool forward);
    void replaceOne();
    void replaceAll();
    int shownIndex() const;
    int indexFrom(const Place &place) const;
    Place here() const;
    void show(int index);
    void showNothing();
    void showState();
    void tellReplaced(const ReplacedTexts &result);

    const Workspace *m_workspace;
    PageView *m_view;
    FindBar *m_bar;
    QVector<FoundText> m_found;
    std::optional<FoundText> m_shown;
    Place m_from; ///< of the search while the user types
    OncePerTurn m_follow;
};

} // namespace board
