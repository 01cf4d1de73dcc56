#pragma once

#include <QtCore/QString>

/// Resolves the localisation keys ("IDS_...") that objects and commands give as their texts.
class ILocalize
{
public:
    virtual ~ILocalize() = default;
    /// The text of a key in the current language; the key itself when no table has it.
    virtual QString text(const QString &key) const = 0;
};
