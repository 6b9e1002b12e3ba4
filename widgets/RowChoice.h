#pragma once

#include <functional>

class QListWidget;

namespace kavenda {

// Calls chosen with the row a person taps, or with the current row when they press Enter on
// the list, so that keyboard and screen-reader users reach what a tap reaches.
void onRowChosen(QListWidget* list, std::function<void(int row)> chosen);

}  // namespace kavenda
