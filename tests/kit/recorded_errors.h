#pragma once

#include "faults/run_time_error.h"

#include <string>
#include <vector>

namespace quillet::test
{

struct RecordedErrors : ErrorBox {
    void showError(const std::string& text) override { texts.push_back(text); }
    std::vector<std::string> texts;
};

} // namespace quillet::test
