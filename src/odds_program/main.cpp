#include "odds/bad_input.h"
#include "odds_program/answer.h"
#include "odds_program/command_line.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <exception>
#include <ios>
#include <iostream>
#include <string_view>
#include <vector>

// Returns 0 if the answer was written, 1 if something could not be read or written or the self-test
// failed, 2 for bad input.
int main(int argc, char** argv)
{
    using namespace quillet::odds_program;
    constexpr int exitBadInput = 2;
    std::ios::sync_with_stdio(false);
    const auto complain = [](const char* why) {
        std::cout.exceptions(std::ios::goodbit);
        std::cout.flush();
        std::cerr << "quillet-odds: " << why << "\n";
    };
    try {
        // Throws as soon as the output fails.
        std::cout.exceptions(std::ios::badbit | std::ios::failbit);
        const std::vector<std::string_view> arguments(argv + std::min(argc, 1), argv + argc);
        answer(parseArguments(arguments), std::cout);
        std::cout.flush();
    } catch (const quillet::odds::BadInput& error) {
        complain(error.what());
        return exitBadInput;
    } catch (const std::ios::failure&) {
        complain((std::string("the answer cannot be written: ") + std::strerror(errno)).c_str());
        return EXIT_FAILURE;
    } catch (const std::exception& error) {
        complain(error.what());
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
