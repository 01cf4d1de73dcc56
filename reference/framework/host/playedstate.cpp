#include <host/playedstate.h>

#include <host/saveddata.h>

void PlayedState::begin(CBaseObject &object)
{
    m_saved = pagehost::savedData(object);
}

bool PlayedState::isNextPicture(CBaseObject &object)
{
    if (!m_saved)
        return false;
    const QByteArray state = pagehost::savedData(object);
    if (state == *m_saved)
        return true;
    m_saved = state;
    return false;
}
