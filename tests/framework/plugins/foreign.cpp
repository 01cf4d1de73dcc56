#include <QtCore/QObject>
#include <QtCore/QtPlugin>

/// A plug-in for something else.
class ForeignPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "test.SomethingElse/1")
};

#include "foreign.moc"
