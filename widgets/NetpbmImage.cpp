// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/NetpbmImage.h"

#include <cstdlib>
#include <fstream>
#include <map>
#include <string>

namespace kavenda {

namespace {

struct Layout {
    int width = 0;
    int height = 0;
    int depth = 0;  // bytes a pixel
};

// "P6 <width> <height> 255" and one white space; no comments, as the writer below leaves none.
bool readPixmapHeader(std::istream& in, Layout& layout)
{
    int maximum = 0;
    in >> layout.width >> layout.height >> maximum;
    layout.depth = 3;
    return in && maximum == 255 && in.get() != EOF;
}

// "P7", then "KEY value" lines up to "ENDHDR".
bool readArbitraryHeader(std::istream& in, Layout& layout)
{
    std::map<std::string, std::string> fields;
    for (std::string key; in >> key && key != "ENDHDR";)
        in >> fields[key];
    layout.width = std::atoi(fields["WIDTH"].c_str());
    layout.height = std::atoi(fields["HEIGHT"].c_str());
    layout.depth = std::atoi(fields["DEPTH"].c_str());
    return in && in.get() == '\n' && layout.depth == 4 && fields["MAXVAL"] == "255"
        && fields["TUPLTYPE"] == "RGB_ALPHA";
}

}  // namespace

QImage readNetpbm(const std::filesystem::path& file)
{
    std::ifstream in(file, std::ios::binary);
    std::string magic;
    in >> magic;
    Layout layout;
    const bool header = magic == "P6" ? readPixmapHeader(in, layout)
                      : magic == "P7" ? readArbitraryHeader(in, layout)
                                      : false;
    constexpr int largest = 1 << 14;
    if (!header || layout.width <= 0 || layout.height <= 0 || layout.width > largest || layout.height > largest)
        return {};
    QImage image(layout.width, layout.height, layout.depth == 4 ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    const auto rowBytes = static_cast<std::streamsize>(layout.width) * layout.depth;
    for (int y = 0; y < layout.height; ++y) {
        if (!in.read(reinterpret_cast<char*>(image.scanLine(y)), rowBytes))
            return {};
    }
    return image;
}

bool writeNetpbm(const QImage& image, const std::filesystem::path& file)
{
    const bool alpha = file.extension() == ".pam";
    if (image.isNull() || (!alpha && file.extension() != ".ppm"))
        return false;
    const QImage pixels = image.convertToFormat(alpha ? QImage::Format_RGBA8888 : QImage::Format_RGB888);
    std::ofstream out(file, std::ios::binary | std::ios::trunc);
    if (alpha)
        out << "P7\nWIDTH " << pixels.width() << "\nHEIGHT " << pixels.height()
            << "\nDEPTH 4\nMAXVAL 255\nTUPLTYPE RGB_ALPHA\nENDHDR\n";
    else
        out << "P6\n" << pixels.width() << ' ' << pixels.height() << "\n255\n";
    const auto rowBytes = static_cast<std::streamsize>(pixels.width()) * (alpha ? 4 : 3);
    for (int y = 0; y < pixels.height(); ++y)
        out.write(reinterpret_cast<const char*>(pixels.constScanLine(y)), rowBytes);
    out.close();
    return static_cast<bool>(out);
}

}  // namespace kavenda
