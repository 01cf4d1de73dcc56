#pragma once

#include <QtCore/QtGlobal>

class CBaseObject;
class CPSRootObject;
class IPsPage;

/// Gives an object access to its page while it is read, without notifying the page of changes.
class ObjectReading
{
public:
    ObjectReading(CBaseObject &object, IPsPage *page);
    /// Detaches the object from the page again.
    ~ObjectReading();
    Q_DISABLE_COPY(ObjectReading)

    /// Whether the host's part of the object found its data bad. Objects may forget to report this and answer for
    /// their own data alone.
    bool wasRefused() const;

private:
    CBaseObject &m_object;
};

/// The zoom that the object followed last, and sized its zoom-dependent parts for.
double followedZoom(const CPSRootObject &object);
