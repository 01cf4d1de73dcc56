#pragma once

#include <QtCore/QtGlobal>

class CBaseObject;
class CPSRootObject;
class IPsPage;

/// Lets an object know its page while it is read, without the page being told of what it reads.
class ObjectReading
{
public:
    ObjectReading(CBaseObject &object, IPsPage *page);
    /// The object is on no page again.
    ~ObjectReading();
    Q_DISABLE_COPY(ObjectReading)

    /// Whether the host's part of the object found its data bad. Objects may forget to say so and answer for their
    /// own data alone.
    bool wasRefused() const;

private:
    CBaseObject &m_object;
};

/// Zoom that the object followed last, and that it has sized parts of itself for.
double followedZoom(const CPSRootObject &object);
