#pragma once

#include <framework/idocument.h>

#include <QtCore/QSet>

class CSVGBase;

/// The set of living shape cores: when a document dies, those that hold it drop their pointer.
class LivingCores : private IDocumentWatcher
{
public:
    static void add(CSVGBase *core);
    static void remove(CSVGBase *core);

private:
    static LivingCores &instance();
    void documentDied(const IDocument *document) override;

    QSet<CSVGBase *> m_cores;
};
