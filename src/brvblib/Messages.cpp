#include "brvblib/Messages.h"

#include <algorithm>
#include <array>

namespace kestrune::brvblib {
namespace {

struct Message {
    std::int32_t number;
    std::string_view text;
};

// In the order of the numbers. Texts to which a caller adds a name end where the name goes.
// clang-format off
constexpr auto messages = std::to_array<Message>({
    // Start-up
    {3021, "Your user preferences could not be found or read.  The default settings are now in use.  A file that could not be read is not lost: where it could be replaced, it is kept in the same folder, under a name that says \"unreadable\"."},
    {3025, "Unable to find the examples workbook.  Please reinstall Kestrune or contact technical support.  Missing file: "},
    {3026, "Unable to find the product help.  Please reinstall Kestrune or contact technical support.  Missing file: "},
    {3027, "The product help could not be opened: "},
    // Smart Copy
    {3040, "Smart Copy Right copies the cells of one column.  Please select cells in a single column and try again."},
    {3041, "The selected cells are empty.  Please select at least one cell with contents to copy and try again."},
    {3042, "No column label was found above the first selected cell.  Smart Copy Right copies to the columns that have a label in the row that labels the selected column."},
    {3043, "Smart Copy Down copies the cells of one row.  Please select cells in a single row and try again."},
    {3044, "No row label was found to the left of the first selected cell.  Smart Copy Down copies to the rows that have a label in the column that labels the selected row."},
    // Preferences files
    {3060, "The selected file is not a user preferences file, or it could not be read.  Your current settings have not been changed."},
    {3061, "The user preferences have been successfully imported."},
    // Number formats
    {3070, "None of the selected cells has a number format with decimal places to adjust."},
    {3071, "Some number formats could not be adjusted, since they would be longer than the 255 characters that Excel allows."},
    {3072, "None of the selected cells has a number format that can show thousands."},
    // Bookmarks
    {3080, "The active workbook has no bookmarks."},
    // Fields of dialogs
    {3110, "Please enter a number for the interval."},
    {3111, "Please enter a number for the %1."},
    {3112, "Please enter an interval from 0 to 1,048,575."},
    {3113, "Please enter a number from 1 to 1,048,575 for the cells that go together."},
    {3114, "Please enter an adjustment from -1,048,575 to 1,048,575."},
    {3115, "Please enter a date from 3/1/1900 to 12/31/9999 for the start date."},
    {3116, "Please enter a date from 3/1/1900 to 12/31/9999 for the end date."},
    {3117, "The end date must not be before the start date."},
    {3118, "Please enter a spacing from 1 to 1,048,575."},
    {3119, "Please enter an interval value greater than zero.  Numbers are filled in descending order when the end value is below the start value."},
    // Styles
    {3120, "Paintbrush "},  // and a counter: the names of captured styles
    // Series
    {3121, "The series does not fit on the worksheet from the selected cell on.  Please select another cell or change the series."},
    // Preferences files again
    {3130, "Importing user preferences will replace all of your current settings, including your styles, SmartCycles and colors."},
    {3131, "You can export your current settings first to be able to return to them.  Would you like to proceed?"},
    {3132, "Your user preferences have been successfully exported."},
    {3133, "Restoring the defaults will replace all of your current settings, including your styles, SmartCycles and colors.  Would you like to proceed?"},
    {3134, "The default settings have been restored."},
    {3135, "Your user preferences could not be exported.  Please choose another folder or file name and try again."},
    // The settings dialog
    {3136, "Your settings could not be saved.  Nothing is lost: what you changed is still in the dialog, and the file is what it was.  Please try again, or export your settings to another file.  "},
    {3137, "Please enter a zoom interval from 1 to 390 per cent."},
    {3138, "Please enter a color by its name, such as Blue, or as #RRGGBB, such as #0000FF.  This is no color: "},
    {3139, "Please enter a name for the SmartCycle."},
    {3140, "There is another SmartCycle of this name already: "},
    {3141, "The SmartCycle contains this style already: "},
    {3142, "The SmartCycle contains this value already: "},
    {3143, "Please enter an indent as a whole number from 0 to 15."},
    {3144, "Please enter a row height from 0 to 409.5 points."},
    {3145, "Please enter a column width from 0 to 255 characters."},
    // Tutorial
    {3150, "The lesson workbook could not be opened.  Please check that the lesson files are installed in the lessons folder, or contact technical support."},
    // Styles in the settings dialog
    {3160, "Please enter a name for the style."},
    {3161, "There is another style of this name already: "},
    {3162, "Names that begin with \"BR Standard\" are those of the styles that come with Kestrune.  Please enter another name than "},
    {3163, "The standard styles that come with Kestrune cannot be changed.  Please duplicate the style, and change the copy: "},
    {3164, "The style cannot be removed, since it is in use as "},
    {3165, "The style will also be removed from these SmartCycles: "},
    {3166, "Please enter a number format as Excel has them.  This is none: "},
    {3167, "Please enter the name of a font, of 31 characters at most.  This is none: "},
    {3168, "Please enter a font size as a whole number of points from 1 to 409.  This is none: "},
    {3169, "Please enter an orientation from -90 to 90 degrees, or Horizontal, Upward, Downward or Stacked.  This is none: "},
    {3170, "There is no active cell whose format could be taken.  Please select a cell on a worksheet."},
});
// clang-format on

static_assert(std::ranges::is_sorted(messages, {}, &Message::number));

}  // namespace

std::optional<std::string_view> message_text(std::int32_t number) {
    const auto found = std::ranges::lower_bound(messages, number, {}, &Message::number);
    if (found == messages.end() || found->number != number) return std::nullopt;
    return found->text;
}

}  // namespace kestrune::brvblib
