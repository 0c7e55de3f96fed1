#include "vba/ProjectProtection.h"

#include <algorithm>
#include <array>

#include "vba/Bytes.h"

namespace kestrune::vba {
namespace {

constexpr std::uint8_t version = 2;
constexpr std::string_view hexadecimal = "0123456789ABCDEF";

std::uint8_t key_of(std::string_view project_id) {
    unsigned sum = 0;
    for (const char c : project_id) sum += static_cast<unsigned char>(c);
    return static_cast<std::uint8_t>(sum);
}

std::size_t ignored_bytes(std::uint8_t seed) { return (seed & 6U) / 2; }

// Each byte is mixed with the plain byte before it and the scrambled one before that.
class Mixer {
  public:
    Mixer(std::uint8_t key, std::uint8_t seed)
        : plain_(key),
          last_(static_cast<std::uint8_t>(seed ^ key)),
          before_(static_cast<std::uint8_t>(seed ^ version)) {}

    std::uint8_t scrambled(std::uint8_t byte) {
        const auto mixed = static_cast<std::uint8_t>(byte ^ mask());
        advance(byte, mixed);
        return mixed;
    }
    std::uint8_t plain(std::uint8_t mixed) {
        const auto byte = static_cast<std::uint8_t>(mixed ^ mask());
        advance(byte, mixed);
        return byte;
    }

  private:
    [[nodiscard]] std::uint8_t mask() const { return static_cast<std::uint8_t>(before_ + plain_); }
    void advance(std::uint8_t byte, std::uint8_t mixed) {
        before_ = last_;
        last_ = mixed;
        plain_ = byte;
    }
    std::uint8_t plain_;
    std::uint8_t last_;
    std::uint8_t before_;
};

}  // namespace

std::string scramble(std::string_view data, std::string_view project_id, std::uint8_t seed) {
    const std::uint8_t key = key_of(project_id);
    std::string plain(ignored_bytes(seed), '\x07');
    put(plain, static_cast<std::uint32_t>(data.size()));
    plain += data;
    std::string out;
    const auto show = [&](unsigned byte) {
        out += hexadecimal[byte >> 4];
        out += hexadecimal[byte & 15];
    };
    for (const unsigned byte :
         std::to_array<unsigned>({seed, static_cast<unsigned>(seed ^ version), static_cast<unsigned>(seed ^ key)}))
        show(byte);
    Mixer mixer(key, seed);
    for (const char c : plain) show(mixer.scrambled(static_cast<std::uint8_t>(c)));
    return out;
}

std::string unscramble(std::string_view digits, std::string_view project_id) {
    std::string bytes;
    for (std::size_t i = 0; i + 1 < digits.size(); i += 2) {
        const std::size_t high = hexadecimal.find(digits[i]);
        const std::size_t low = hexadecimal.find(digits[i + 1]);
        if (std::max(high, low) == std::string_view::npos) throw VbaError("a protection value is not hexadecimal");
        bytes += static_cast<char>(high << 4 | low);
    }
    Reader in(bytes);
    const auto byte = [&] { return in.number<std::uint8_t>(); };
    const std::uint8_t seed = byte();
    const std::uint8_t key = key_of(project_id);
    if ((byte() ^ seed) != version || (byte() ^ seed) != key) {
        throw VbaError("a protection value was not made for the project " + std::string(project_id));
    }
    Mixer mixer(key, seed);
    for (std::size_t i = 0; i < ignored_bytes(seed); ++i) mixer.plain(byte());
    std::uint32_t length = 0;
    for (unsigned i = 0; i < 4; ++i) length |= std::uint32_t{mixer.plain(byte())} << (8 * i);
    std::string data;
    if (length != in.left()) throw VbaError("a protection value has another length than it says");
    while (in.left() > 0) data += static_cast<char>(mixer.plain(byte()));
    return data;
}

}  // namespace kestrune::vba
