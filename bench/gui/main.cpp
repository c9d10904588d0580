// The benchmarks of the Qt windows: one program, offscreen, on a virtual
// screen of 1920 x 1080 pixels at 96 dpi, so that every run paints the same.

#include <QApplication>
#include <QByteArray>
#include <QFile>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <filesystem>
#include <fstream>

int main(int argc, char** argv) {
    const std::filesystem::path screen = std::filesystem::temp_directory_path() / "vantorel-bench-screen.json";
    std::ofstream(screen) << R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [)"
                          << R"({"name": "Screen", "x": 0, "y": 0, "width": 1920, "height": 1080,)"
                          << R"( "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + QByteArray::fromStdString(screen.string()));
    if (qEnvironmentVariableIsEmpty("VANTOREL_IMAGES")) qputenv("VANTOREL_IMAGES", VANTOREL_IMAGES_DIR);
    // Qt wants a private runtime folder; one of our own if none is given.
    QTemporaryDir runtime;
    if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR") && runtime.isValid()) {
        QFile::setPermissions(runtime.path(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(runtime.path()));
    }
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
    QApplication app(argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
