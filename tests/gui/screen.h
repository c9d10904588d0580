#pragma once

// The virtual screen of a widget test: Qt's offscreen platform with one
// screen of the given size at 96 dpi, window system events delivered at once
// and no frame margins, so that places on it are exact. Each run writes a
// file of its own, so that runs side by side do not write into each other's.
// Made before the QApplication, it lives as long as the test; the file goes
// with it.

#include <QByteArray>

#include <filesystem>
#include <fstream>
#include <string>

#include <unistd.h>

namespace vantorel::test {

class VirtualScreen final {
  public:
    VirtualScreen(const char* name, int width, int height)
        : m_file(std::filesystem::temp_directory_path() /
                 ("vantorel-test-screen-" + std::to_string(::getpid()) + ".json")) {
        std::ofstream(m_file) << R"({"synchronousWindowSystemEvents": true, "windowFrameMargins": false, "screens": [)"
                              << R"({"name": ")" << name << R"(", "x": 0, "y": 0, "width": )" << width
                              << R"(, "height": )" << height
                              << R"(, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})";
        qputenv("QT_QPA_PLATFORM", QByteArray("offscreen:configfile=") + QByteArray::fromStdString(m_file.string()));
    }
    ~VirtualScreen() {
        std::error_code ignored;
        std::filesystem::remove(m_file, ignored);
    }
    VirtualScreen(const VirtualScreen&) = delete;
    VirtualScreen& operator=(const VirtualScreen&) = delete;

  private:
    std::filesystem::path m_file;
};

} // namespace vantorel::test
