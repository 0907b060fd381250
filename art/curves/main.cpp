// quendal-curves DIR: writes all curve files of the data folder into DIR.
#include "curve_set.h"

#include <exception>
#include <iostream>

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: quendal-curves DIR\n";
        return 2;
    }
    try {
        for (const auto& file : quendal::curves::allCurveFiles()) {
            quendal::curves::writeCurveFile(argv[1], file);
        }
    } catch (const std::exception& error) {
        std::cerr << "quendal-curves: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
