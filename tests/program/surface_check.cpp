// Fails when a screen, a control with a procedure, a message, a layout or a record file was met by no scenario:
// surface_check SOURCES NOTES, where NOTES is the folder with what each scenario noted.

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "surface_list.h"

int main(int argc, char** argv) {
    if (argc != 3) return 2;
    const vorbano::test::SurfaceList all = vorbano::test::listSurfaces(argv[1]);
    std::vector<std::string> notes;
    for (const auto& entry : std::filesystem::directory_iterator(argv[2])) {
        std::ifstream file(entry.path(), std::ios::binary);
        for (std::string line; std::getline(file, line);) notes.push_back(line);
    }
    const std::vector<std::string> missing = vorbano::test::notMet(all, notes);
    for (const std::string& one : missing) std::printf("met by no scenario: %s\n", one.c_str());
    std::printf("%zu screens, %zu controls, %zu layouts, %zu record files, %zu texts; %zu of them met by no scenario\n",
                all.screens.size(), all.controls.size(), all.layouts.size(), all.files.size(), all.texts.size(),
                missing.size());
    return missing.empty() ? 0 : 1;
}
