// SPDX-FileCopyrightText: 2026 Kavenda team
// SPDX-License-Identifier: GPL-3.0-or-later

#include "widgets/NetpbmImage.h"

#include <cctype>
#include <charconv>
#include <fcntl.h>
#include <fstream>
#include <map>
#include <string>
#include <string_view>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kavenda {

namespace {

// The header's words, one after another, and where the pixels begin after it.
class Header {
public:
    explicit Header(std::string_view bytes) : bytes_(bytes) {}

    std::string_view word()
    {
        while (at_ < bytes_.size() && std::isspace(static_cast<unsigned char>(bytes_[at_])))
            ++at_;
        const std::size_t start = at_;
        while (at_ < bytes_.size() && !std::isspace(static_cast<unsigned char>(bytes_[at_])))
            ++at_;
        return bytes_.substr(start, at_ - start);
    }
    int number() { return numberOf(word()); }
    // The one white space that ends the header: any for a pixmap, a line's end for the other.
    bool endsWithOneOf(std::string_view separators)
    {
        return at_ < bytes_.size() && separators.find(bytes_[at_++]) != std::string_view::npos;
    }
    std::string_view rest() const { return bytes_.substr(at_); }

    static int numberOf(std::string_view text)
    {
        int value = 0;
        const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
        return error == std::errc() && end == text.data() + text.size() ? value : 0;
    }

private:
    std::string_view bytes_;
    std::size_t at_ = 0;
};

struct Layout {
    int width = 0;
    int height = 0;
    QImage::Format format = QImage::Format_Invalid;  // of the bytes in the file
};

// "P6 <width> <height> 255" and one white space; no comments, as the writer below leaves none.
Layout pixmapLayout(Header& header)
{
    const int width = header.number();
    const int height = header.number();
    const bool byteChannels = header.number() == 255 && header.endsWithOneOf(" \t\n\r\v\f");
    return byteChannels ? Layout{width, height, QImage::Format_RGB888} : Layout{};
}

// "KEY value" lines up to "ENDHDR".
Layout arbitraryLayout(Header& header)
{
    std::map<std::string_view, std::string_view> fields;
    for (std::string_view key = header.word(); !key.empty() && key != "ENDHDR"; key = header.word())
        fields[key] = header.word();
    const bool rgba = Header::numberOf(fields["DEPTH"]) == 4 && fields["MAXVAL"] == "255"
        && fields["TUPLTYPE"] == "RGB_ALPHA" && header.endsWithOneOf("\n");
    return rgba ? Layout{Header::numberOf(fields["WIDTH"]), Header::numberOf(fields["HEIGHT"]), QImage::Format_RGBA8888}
                : Layout{};
}

// Straight into the form a pixmap keeps, so that making one from it converts nothing.
QImage decode(std::string_view bytes)
{
    Header header(bytes);
    const std::string_view magic = header.word();
    const Layout layout = magic == "P6" ? pixmapLayout(header) : magic == "P7" ? arbitraryLayout(header) : Layout{};
    constexpr int largest = 1 << 14;
    if (layout.format == QImage::Format_Invalid || layout.width <= 0 || layout.height <= 0 || layout.width > largest
        || layout.height > largest)
        return {};
    const int depth = layout.format == QImage::Format_RGBA8888 ? 4 : 3;
    const qsizetype rowBytes = qsizetype(layout.width) * depth;
    if (qsizetype(header.rest().size()) < rowBytes * layout.height)
        return {};
    const QImage file(reinterpret_cast<const uchar*>(header.rest().data()), layout.width, layout.height, rowBytes,
                      layout.format);
    return file.convertToFormat(depth == 4 ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

}  // namespace

QImage readNetpbm(const std::filesystem::path& file)
{
    // Mapped, not read: the pixels are copied once, into the image.
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    struct stat status {};
    void* mapped = MAP_FAILED;
    if (::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode) && status.st_size > 0)
        mapped = ::mmap(nullptr, static_cast<std::size_t>(status.st_size), PROT_READ, MAP_PRIVATE | MAP_POPULATE,
                        descriptor, 0);
    ::close(descriptor);
    if (mapped == MAP_FAILED)
        return {};
    QImage image = decode({static_cast<const char*>(mapped), static_cast<std::size_t>(status.st_size)});
    ::munmap(mapped, static_cast<std::size_t>(status.st_size));
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
