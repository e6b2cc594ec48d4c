#include "odds/answer.h"
#include "odds/command_line.h"
#include "odds/hand_text.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string_view>
#include <vector>

// 0 when the answer was written, 1 when that failed, 2 when what was asked makes no sense.
int main(int argc, char** argv)
{
    using namespace quillet;
    constexpr int senseless = 2;
    std::ios::sync_with_stdio(false);
    const auto complain = [](const std::exception& error) {
        std::cout.flush();
        std::cerr << "quillet-odds: " << error.what() << "\n";
    };
    try {
        const std::vector<std::string_view> arguments(argv + std::min(argc, 1), argv + argc);
        answer(parseArguments(arguments), std::cin, std::cout);
        std::cout.flush();
        if (!std::cout)
            throw std::runtime_error("the answer could not be written");
    } catch (const BadUsage& error) {
        complain(error);
        std::cerr << "Try quillet-odds --help\n";
        return senseless;
    } catch (const charts::BadChart& error) {
        complain(error);
        return senseless;
    } catch (const BadHand& error) {
        complain(error);
        return senseless;
    } catch (const BadPays& error) {
        complain(error);
        return senseless;
    } catch (const std::exception& error) {
        complain(error);
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}
