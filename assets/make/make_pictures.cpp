#include "assets/make/pictures/pictures.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    if (argc != 2) {
        std::cerr << "usage: make_pictures FOLDER\n";
        return 2;
    }
    try {
        quillet::artwork::writePictures(QString::fromLocal8Bit(argv[1]));
    } catch (const std::exception& error) {
        std::cerr << "make_pictures: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
