#include "shape/livingcores.h"

#include <svgobj/csvgbase.h>

LivingCores &LivingCores::instance()
{
    static LivingCores cores; // created by the first core's constructor, so that it outlives all cores
    return cores;
}

void LivingCores::add(CSVGBase *core)
{
    instance().m_cores.insert(core);
}

void LivingCores::remove(CSVGBase *core)
{
    instance().m_cores.remove(core);
}

void LivingCores::documentDied(const IDocument *document)
{
    for (CSVGBase *core : qAsConst(m_cores))
        if (core->belongDoc == document)
            core->belongDoc = nullptr;
}
