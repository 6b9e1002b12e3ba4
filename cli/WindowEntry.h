// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

// What the window module exports, by a C name that this command resolves when it opens a window.
extern "C" {
// The window's life on the command's arguments; the process's exit status.
__attribute__((visibility("default"))) int kavenda_window_main(int argc, char** argv);
}
