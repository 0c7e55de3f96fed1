#include <cstdlib>

#include "snapshot/Strokes.h"

namespace kestrune::brxllib::undo {
namespace {

unsigned number_from(const char* variable, unsigned otherwise) {
    const char* text = std::getenv(variable);
    return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : otherwise;
}

// The aspects in which cells of two Excels differ, as snapshots see them.
std::string unlike(const OneExcel& one, const OneExcel& other, const std::string& address) {
    constexpr std::pair<Aspect, const char*> aspects[] = {
        {Aspect::Contents, "contents "}, {Aspect::Formats, "formats "}, {Aspect::Conditions, "conditions "},
        {Aspect::Merges, "merges "},     {Aspect::Rows, "rows "},       {Aspect::Columns, "columns "}};
    std::string text;
    for (const auto& [aspect, name] : aspects) {
        if (!(one.take(address, aspect) == other.take(address, aspect))) text += name;
    }
    return text;
}

// A random sheet, recorded somewhere, changed there at random and given back is the same as one that was never changed.
TEST(SnapshotRandom, CellsComeBackWhateverBecameOfThem) {
    const unsigned first = number_from("KESTRUNE_SNAPSHOT_SEED", 1);
    const unsigned count = number_from("KESTRUNE_SNAPSHOTS", 40);
    for (unsigned seed = first; seed < first + count; ++seed) {
        OneExcel untouched;
        OneExcel changed;
        for (OneExcel* excel : {&untouched, &changed}) {
            Strokes strokes(seed);
            for (int i = 0; i < 40; ++i) strokes.stroke(excel->cells(strokes.address()));
        }
        Strokes damage(seed + 0x10000);
        const std::string address = damage.address();
        const excel::Range cells = changed.cells(address);
        const Snapshot snapshot = changed.take(address);
        ASSERT_TRUE(changed.still(snapshot)) << "seed " << seed << ", " << address;
        for (int i = 0; i < 12; ++i) {
            const excel::Range part = changed.application.Intersect(cells, changed.cells(damage.address()));
            damage.stroke(part && damage.below(2) == 0 ? part : cells);
        }
        ASSERT_THAT(snapshot.restore(changed.trace), testing::IsEmpty()) << "seed " << seed << ", " << address;
        ASSERT_THAT(differences(*untouched.model, *changed.model), testing::IsEmpty())
            << "seed " << seed << ", " << address;
        ASSERT_TRUE(changed.still(snapshot))
            << "seed " << seed << ", " << address << ": " << unlike(untouched, changed, address);
    }
}

}  // namespace
}  // namespace kestrune::brxllib::undo
