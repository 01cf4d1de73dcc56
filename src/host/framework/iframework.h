#pragma once

#include <framework/framework_global.h>

#include <QtGui/QColor>

class IDocument;

/// Application-wide services.
class IFramework
{
public:
    /// Ids of configured colours.
    enum ColorSetting { DefaultPenColor = 1001 };

    virtual ~IFramework() = default;
    /// Overwrites `color` with the colour configured for `settingId`; leaves it unchanged when there is none.
    /// `flag` asks for the colour of the presentation theme instead of the editing one.
    virtual void colorSetting(int settingId, QColor &color, bool flag) = 0;
    /// The document that the user works on; null only before the first one is created, never during painting.
    virtual IDocument *currentDocument() = 0;
    /// Opens a grouped undo step: commands pushed until the matching endUndoGroup() undo and redo together under
    /// the localisation key `titleKey`. Groups nest.
    virtual void beginUndoGroup(const QString &titleKey) = 0;
    /// Closes the group. A group that stayed empty leaves no step behind.
    virtual void endUndoGroup() = 0;
};

/// The process-wide framework object; never null.
FRAMEWORK_EXPORT IFramework *GetFramework();
/// Replaces it and returns the previous one; null restores the library's own. The caller keeps ownership.
FRAMEWORK_EXPORT IFramework *SetFramework(IFramework *framework);
