#include "desktop/StderrLog.h"

#include <cstdio>

namespace kavenda {

void StderrLog::line(const std::string& text)
{
    std::fprintf(stderr, "%s\n", text.c_str());
}

}  // namespace kavenda
