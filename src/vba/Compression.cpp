#include "vba/Compression.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <vector>

#include "vba/Bytes.h"

namespace kestrune::vba {
namespace {

constexpr char container_signature = 1;
constexpr std::size_t chunk_size = 4096;
constexpr std::size_t header_size = 2;
constexpr std::size_t shortest_copy = 3;
constexpr std::uint16_t chunk_signature = 0x3000;
constexpr std::uint16_t compressed_flag = 0x8000;
constexpr std::uint16_t size_mask = 0x0FFF;

// How a copy's 16 bits are shared between its distance and its length: the further into the chunk, the more bits the
// distance needs. `position` is at least 1.
struct CopyBits {
    explicit CopyBits(std::size_t position)
        : distance(std::max<unsigned>(static_cast<unsigned>(std::bit_width(position - 1)), 4)), length(16 - distance) {}
    unsigned distance;
    unsigned length;
    [[nodiscard]] std::size_t longest() const { return ((std::size_t{1} << length) - 1) + shortest_copy; }
};

struct Copy {
    std::size_t distance = 0;
    std::size_t length = 0;
};

// Where in a chunk every three bytes stood before, by their hash, nearest first.
class Earlier {
  public:
    explicit Earlier(std::string_view chunk) : chunk_(chunk), before_(chunk.size(), none) { heads_.fill(none); }

    // The longest copy for the position, the nearest of equally long ones; length 0 when there is none.
    [[nodiscard]] Copy longest(std::size_t position) const {
        Copy best;
        if (position == 0 || position + shortest_copy > chunk_.size()) return best;
        const std::size_t most = std::min(CopyBits(position).longest(), chunk_.size() - position);
        for (std::uint16_t at = heads_[hash(position)]; at != none && best.length < most; at = before_[at]) {
            std::size_t length = 0;
            while (length < most && chunk_[at + length] == chunk_[position + length]) ++length;
            if (length > best.length) best = {position - at, length};
        }
        return best.length < shortest_copy ? Copy() : best;
    }
    void add(std::size_t position) {
        if (position + shortest_copy > chunk_.size()) return;
        std::uint16_t& head = heads_[hash(position)];
        before_[position] = head;
        head = static_cast<std::uint16_t>(position);
    }

  private:
    static constexpr std::uint16_t none = 0xFFFF;
    static constexpr std::size_t heads = 1024;

    [[nodiscard]] std::size_t hash(std::size_t at) const {
        const auto byte = [&](std::size_t i) { return std::size_t{static_cast<unsigned char>(chunk_[at + i])}; };
        return (byte(0) * 33 * 33 + byte(1) * 33 + byte(2)) % heads;
    }

    std::string_view chunk_;
    std::array<std::uint16_t, heads> heads_{};
    std::vector<std::uint16_t> before_;
};

void put_header(std::string& out, std::size_t size, std::uint16_t flag) {
    put(out, static_cast<std::uint16_t>((header_size + size - 3) | chunk_signature | flag));
}

void compress_chunk(std::string_view chunk, std::string& out) {
    std::string packed;
    Earlier earlier(chunk);
    for (std::size_t at = 0; at < chunk.size();) {
        const std::size_t flags_at = packed.size();
        packed += '\0';
        for (unsigned bit = 0; bit < 8 && at < chunk.size(); ++bit) {
            const Copy copy = earlier.longest(at);
            if (copy.length == 0) {
                packed += chunk[at];
                earlier.add(at++);
                continue;
            }
            const CopyBits bits(at);
            packed[flags_at] = static_cast<char>(packed[flags_at] | 1 << bit);
            put(packed, static_cast<std::uint16_t>((copy.distance - 1) << bits.length | (copy.length - shortest_copy)));
            for (std::size_t i = 0; i < copy.length; ++i) earlier.add(at++);
        }
    }
    if (packed.size() <= chunk_size) {
        put_header(out, packed.size(), compressed_flag);
        out += packed;
    } else {
        put_header(out, chunk_size, 0);
        out.append(chunk).append(chunk_size - chunk.size(), '\0');
    }
}

void decompress_chunk(std::string_view packed, std::string& out) {
    const std::size_t start = out.size();
    for (Reader in(packed); in.left() > 0;) {
        const auto flags = in.number<std::uint8_t>();
        for (unsigned bit = 0; bit < 8 && in.left() > 0; ++bit) {
            const std::size_t position = out.size() - start;
            if (!(flags >> bit & 1)) {
                if (position >= chunk_size) throw VbaError("a compressed chunk is longer than 4096 bytes");
                out += in.take(1);
                continue;
            }
            if (position == 0) throw VbaError("a compressed chunk begins with a copy");
            const CopyBits bits(position);
            const std::uint16_t token = in.u16();
            const std::size_t distance = (token >> bits.length) + std::size_t{1};
            const std::size_t length = (token & ((1U << bits.length) - 1)) + shortest_copy;
            if (distance > position) throw VbaError("a compressed chunk copies from before its beginning");
            if (position + length > chunk_size) throw VbaError("a compressed chunk is longer than 4096 bytes");
            for (std::size_t i = 0; i < length; ++i) out += out[out.size() - distance];
        }
    }
}

}  // namespace

std::string compress(std::string_view text) {
    std::string out(1, container_signature);
    for (std::size_t at = 0; at < text.size(); at += chunk_size) compress_chunk(text.substr(at, chunk_size), out);
    return out;
}

std::string decompress(std::string_view bytes, std::size_t limit) {
    Reader in(bytes);
    if (in.take(1)[0] != container_signature) throw VbaError("the data is not compressed as Visual Basic does");
    std::string out;
    while (in.left() > 0) {
        const std::uint16_t header = in.u16();
        if ((header & 0x7000) != chunk_signature) throw VbaError("a compressed chunk has no signature");
        const std::string_view packed = in.take((header & size_mask) + std::size_t{3} - header_size);
        if (header & compressed_flag) {
            decompress_chunk(packed, out);
        } else if (packed.size() == chunk_size) {
            out += packed;
        } else {
            throw VbaError("a chunk that is stored whole has not 4096 bytes");
        }
        if (out.size() > limit) throw VbaError("the data is larger than " + std::to_string(limit) + " bytes");
    }
    return out;
}

}  // namespace kestrune::vba
