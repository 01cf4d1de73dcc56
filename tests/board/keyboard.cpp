#include <board/keyboard.h>

#include <QtCore/QChar>
#include <QtCore/QHash>

namespace boardtest {

namespace {

constexpr std::uint32_t firstFunctionKey = 0xffbe;

const QHash<int, std::uint32_t> &namedKeys()
{
    static const QHash<int, std::uint32_t> keys = {
        {Qt::Key_Backspace, 0xff08}, {Qt::Key_Tab, 0xff09},    {Qt::Key_Backtab, 0xff09},
        {Qt::Key_Return, 0xff0d},    {Qt::Key_Escape, 0xff1b}, {Qt::Key_Home, 0xff50},
        {Qt::Key_Left, 0xff51},      {Qt::Key_Up, 0xff52},     {Qt::Key_Right, 0xff53},
        {Qt::Key_Down, 0xff54},      {Qt::Key_PageUp, 0xff55}, {Qt::Key_PageDown, 0xff56},
        {Qt::Key_End, 0xff57},       {Qt::Key_Insert, 0xff63}, {Qt::Key_Menu, 0xff67},
        {Qt::Key_Enter, 0xff8d},     {Qt::Key_Shift, 0xffe1},  {Qt::Key_Alt, 0xffe9},
        {Qt::Key_Control, 0xffe3},   {Qt::Key_Delete, 0xffff},
    };
    return keys;
}

} // namespace

std::uint32_t keySymbol(Qt::Key key)
{
    const auto named = namedKeys().constFind(key);
    if (named != namedKeys().constEnd())
        return named.value();
    if (key >= Qt::Key_F1 && key <= Qt::Key_F35)
        return firstFunctionKey + std::uint32_t(key - Qt::Key_F1);
    // Characters of Latin-1 are their own numbers; keys of letters have the small ones.
    return QChar(int(key)).toLower().unicode();
}

} // namespace boardtest
