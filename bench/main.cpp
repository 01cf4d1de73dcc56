#include "ratioreporter.h"

#include <QtCore/QByteArray>
#include <QtWidgets/QApplication>

void registerLoadBenchmarks();
void registerDrawBenchmarks();
void registerSetBenchmarks();
void registerDocumentBenchmarks();
void registerDragBenchmarks();
void registerTwinBenchmarks();
void registerPageBenchmarks();
void registerThreadBenchmarks();
void registerPathTextBenchmarks();
void registerAnimationBenchmarks();
void registerInkBenchmarks();

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    registerLoadBenchmarks();
    registerDrawBenchmarks();
    registerSetBenchmarks();
    registerDocumentBenchmarks();
    registerDragBenchmarks();
    registerTwinBenchmarks();
    registerPageBenchmarks();
    registerThreadBenchmarks();
    registerPathTextBenchmarks();
    registerAnimationBenchmarks();
    registerInkBenchmarks();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    RatioReporter reporter;
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return 0;
}
