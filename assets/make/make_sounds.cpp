#include "assets/make/sounds/cues.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>

int main(int argumentCount, char** arguments)
{
    if (argumentCount != 2) {
        std::cerr << "usage: make_sounds FOLDER\n";
        return EXIT_FAILURE;
    }
    const std::filesystem::path folder = arguments[1];
    for (const quillet::CueFile& cue : quillet::makeCues()) {
        std::ofstream file(folder / cue.fileName, std::ios::binary);
        file << cue.bytes;
        file.close();
        if (!file) {
            std::cerr << "make_sounds: cannot write " << folder / cue.fileName << '\n';
            return EXIT_FAILURE;
        }
    }
    return EXIT_SUCCESS;
}
