#pragma once

#include "output/pageexport.h"

#include <QtCore/QString>
#include <QtCore/QStringList>

namespace board {

/// Options of the command line.
struct Options
{
    enum Action { OpenWindow, ExportPages, WriteThumbnail, TakeScreenshot, ShowText };
    Action action = OpenWindow;
    /// For ShowText: what to print, on stderr when `failed`.
    QString message;
    bool failed = false;

    QStringList shapeFolders;
    QStringList pluginFolders; ///< additional ones, in the order given
    QString file;              ///< document to open; empty for none
    QString exportFolder;
    PageFormat format = PageFormat::Png;
    double scale = 1; ///< pixels per scene unit of exported pages
    QString thumbnailFile;
    int thumbnailSize = 256; ///< pixels of the longer side
    QString screenshotFile;
    QString screenshotState; ///< "empty", "shapes", "selection", "drag", "recording" or "playing"
    bool play = false;       ///< the file's lessons
    bool present = false;    ///< the file, over the whole screen
    bool demo = false;
    bool dark = false;
    QString language; ///< empty for that of the system
};

/// Reads the arguments, the program's name first. Never ends the program: bad arguments give a message.
Options parseCommandLine(const QStringList &arguments);

} // namespace board
