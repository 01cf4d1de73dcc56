#pragma once

#include <svgobj/svgobj_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QString>

/// Type of a property's value; it decides which editor the host's property panel shows.
enum DATA_TYPE : int {
    DATA_TYPE_0 = 0,
    DATA_TYPE_INT = 1,
    DATA_TYPE_REAL = 2,
    DATA_TYPE_COLOR = 3,
    DATA_TYPE_4 = 4,
    DATA_TYPE_5 = 5
};

/// One property that a shape offers: its id, name, the action under which changes are recorded, and its editor.
class SVGOBJ_EXPORT CSVGPropItem
{
public:
    /// `extraData` describes the editor (the entries of a list, for example); its bytes are copied, null and empty
    /// mean the same. `isAttribute` says whether the id is offered through the page object's attribute id list.
    CSVGPropItem(int propId, const QString &name, int actionId, DATA_TYPE dataType, QByteArray *extraData,
                 bool isAttribute);
    ~CSVGPropItem();

    /// The item's own editor description; null when it holds no byte.
    QByteArray *getExtraData();

    int propId;           ///< see PropId; shapes have ids of their own besides
    QString propName;     ///< localisation key
    int actionId;         ///< under which changes are recorded
    DATA_TYPE dataType;   ///< of the value
    QByteArray extraData; ///< see getExtraData()
    bool isAttribute;     ///< offered through the page object's attribute ids
};
