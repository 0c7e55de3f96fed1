#include "fuzz/targets.h"
#include "vba/CompoundFile.h"
#include "vba/Compression.h"
#include "vba/Project.h"
#include "vba/VbaError.h"

namespace kestrune::fuzz {
namespace {

constexpr std::size_t largest = std::size_t{1} << 20;

bool same(const vba::Entry& left, const vba::Entry& right) {
    if (left.name != right.name || left.is_storage != right.is_storage || left.bytes != right.bytes) return false;
    if (left.children.size() != right.children.size()) return false;
    for (std::size_t i = 0; i < left.children.size(); ++i) {
        if (!same(left.children[i], right.children[i])) return false;
    }
    return true;
}

// What cannot be read is refused with one line; whatever else happens is a fault.
template <class Attempt>
bool refused(Attempt&& attempt) {
    try {
        attempt();
        return false;
    } catch (const vba::VbaError& error) {
        const std::string_view what = error.what();
        expect(what.find_first_of("\r\n") == std::string_view::npos, "one line", what);
        return true;
    }
}

}  // namespace

void vba(std::string_view bytes) {
    const std::string back = vba::decompress(vba::compress(bytes));
    // Only a last chunk that does not get smaller is filled up.
    expect(back.substr(0, bytes.size()) == bytes && back.find_first_not_of('\0', bytes.size()) == std::string::npos,
           "a text comes back", bytes, back);
    refused([&] { vba::decompress(bytes, largest); });

    vba::Entry root;
    if (refused([&] { root = vba::read_compound(bytes); })) return;
    expect(same(root, vba::read_compound(vba::write_compound(root))), "a tree comes back", bytes);
    refused([&] { vba::read_project(root); });
}

}  // namespace kestrune::fuzz
