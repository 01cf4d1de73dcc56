#pragma once

class CBaseObject;
class QDataStream;

/// The attributes that this host offers of every page object. Each is one value on a stream.
class HostAttribute
{
public:
    enum Id : int {
        TextFamily = 2001,    ///< QString
        TextSize = 2002,      ///< double, points
        TextColor = 2003,     ///< QColor
        TextAlignment = 2004, ///< qint32, a horizontal Qt::Alignment
        PositionX = 2010,     ///< double, scene coordinates
        PositionY = 2011,     ///< double, scene coordinates
        Width = 2012,         ///< double, item units
        Height = 2013,        ///< double, item units
        Rotation = 2014,      ///< double, degrees; the centre stays in place
        Locked = 2015,        ///< bool
        BorderColor = 2050,   ///< QColor
        BorderWidth = 2051    ///< double, item units
    };
    static constexpr double smallestTextSize = 1;
    static constexpr double largestTextSize = 1000;

    /// False, with nothing written, for any other id.
    static bool write(CBaseObject &item, int id, QDataStream &out);
    /// False, with nothing changed, for an unknown id or a value that the attribute cannot have.
    static bool apply(CBaseObject &item, int id, QDataStream &in);
    static bool changesSize(int id) { return id == Width || id == Height; }
    static bool changesPlace(int id) { return id >= PositionX && id <= Rotation; }
};
