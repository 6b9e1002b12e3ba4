#pragma once

namespace kavenda {

// Makes a font that writes Persian well the application's font: Nazli, else DejaVu Sans.
void usePersianFont();

}  // namespace kavenda
