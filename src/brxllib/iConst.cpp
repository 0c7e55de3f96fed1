#include "brxllib/iConst.h"

namespace kestrune::brxllib {

using automation::MemberTable;
using automation::read_only;

const MemberTable& iConst::members() {
    using S = AutoColorSettings;
    static constexpr auto rows =
        automation::member_rows(read_only<&iConst::content<ContentKind::Empty>>("ContentEmpty", 1),
                                read_only<&iConst::content<ContentKind::Text>>("ContentText", 2),
                                read_only<&iConst::content<ContentKind::Logical>>("ContentLogical", 3),
                                read_only<&iConst::content<ContentKind::Error>>("ContentError", 4),
                                read_only<&iConst::content<ContentKind::Date>>("ContentDate", 5),
                                read_only<&iConst::content<ContentKind::Time>>("ContentTime", 6),
                                read_only<&iConst::content<ContentKind::DateAndTime>>("ContentDateAndTime", 7),
                                read_only<&iConst::content<ContentKind::Number>>("ContentNumber", 8),
                                read_only<&iConst::auto_color<&S::bAutoColorOn>>("bAutoColorOn", 9),
                                read_only<&iConst::auto_color<&S::bAutoColorHyperlinks>>("bAutoColorHyperlinks", 10),
                                read_only<&iConst::auto_color<&S::bAutoColorText>>("bAutoColorText", 11),
                                read_only<&iConst::auto_color<&S::bAutoColorDate>>("bAutoColorDate", 12),
                                read_only<&iConst::auto_color<&S::InputColor>>("InputColor", 13),
                                read_only<&iConst::auto_color<&S::PartialInputColor>>("PartialInputColor", 14),
                                read_only<&iConst::auto_color<&S::FormulaColor>>("FormulaColor", 15),
                                read_only<&iConst::auto_color<&S::WksLinkColor>>("WksLinkColor", 16),
                                read_only<&iConst::auto_color<&S::WkbLinkColor>>("WkbLinkColor", 17),
                                read_only<&iConst::auto_color<&S::HyperLinkColor>>("HyperLinkColor", 18),
                                read_only<&iConst::auto_color_smart_cycle>("AutoColorSmartCycle", 19));
    static constexpr MemberTable table("iConst", rows);
    return table;
}

}  // namespace kestrune::brxllib
