// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

// Preloaded into a program whose start bench/startup measures: one line on standard error when
// the first frame reaches the window. Qt's painting log says so too, but it writes a line for
// every widget painted before, which weighs on a window of many widgets and not on a bare one.
// It stands in for QBackingStore::flush by its C++ name, so that it needs no Qt of its own and
// costs the command nothing before it loads the window.
#include <dlfcn.h>
#include <unistd.h>

// Qt's own flush, found on the first frame; only the window's thread flushes.
extern "C" void _ZN13QBackingStore5flushERK7QRegionP7QWindowRK6QPoint(void* store, const void* region, void* window,
                                                                      const void* offset)
{
    using Flush = void (*)(void*, const void*, void*, const void*);
    static Flush qtFlush = nullptr;
    if (!qtFlush) {
        static constexpr char line[] = "first frame\n";
        [[maybe_unused]] const auto written = ::write(STDERR_FILENO, line, sizeof line - 1);
        qtFlush = reinterpret_cast<Flush>(::dlsym(RTLD_NEXT, __func__));
    }
    qtFlush(store, region, window, offset);
}
