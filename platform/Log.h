#pragma once

#include <string>

namespace kavenda {

// The platform log: plain lines, no levels.
class Log {
public:
    virtual ~Log() = default;
    virtual void line(const std::string& text) = 0;
};

}  // namespace kavenda
