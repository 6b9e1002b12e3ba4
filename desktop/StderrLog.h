#pragma once

#include "platform/Log.h"

namespace kavenda {

class StderrLog final : public Log {
public:
    void line(const std::string& text) override;
};

}  // namespace kavenda
