#pragma once

#include "faults/error_box.h"

namespace quillet
{

// The error box on the screen: modal, an OK button only, titled with the application's name.
class MessageErrorBox : public ErrorBox
{
public:
    void showError(const std::string& text) override;
};

} // namespace quillet
