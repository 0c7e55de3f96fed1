#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/bridges/LibraryBridge.h"
#include "core/bridges/Messages.h"

namespace kestrune::core {

// A macro of the companion workbook that can have a key.
struct HotKeyMacro {
    std::string_view macro;
    std::string_view name;
    std::string_view description;
    std::string_view key;  // its own, "Ctrl+Shift+Z"; empty for none
    std::string_view group;
};

// A number format as a command would have it.
struct AdjustedNumberFormat {
    enum class Outcome : std::int32_t {
        Changed = 0,
        AtLimit = 1,     // there is no further step
        NotNumeric = 2,  // it shows texts, dates or fractions
        TooLong = 3,     // for Excel
    };
    Outcome outcome = Outcome::NotNumeric;
    std::string format;  // the given one unless Changed
};

// The general library: strings, product data, screen. The typed calls fail as automation calls do.
class diBRVBLib : public LibraryBridge {
  public:
    explicit diBRVBLib(const automation::Trace& trace) : LibraryBridge("BRVBLib.iPublic", names, trace) {}

    [[nodiscard]] const automation::ObjectRef& iConst() const { return object(Const); }
    [[nodiscard]] const automation::ObjectRef& iDate() const { return object(Date); }
    [[nodiscard]] const automation::ObjectRef& iDocProp() const { return object(DocProp); }
    [[nodiscard]] const automation::ObjectRef& iFile() const { return object(File); }
    [[nodiscard]] const automation::ObjectRef& iGUID() const { return object(GUID); }
    [[nodiscard]] const automation::ObjectRef& iHotKeys() const { return object(HotKeys); }
    [[nodiscard]] const automation::ObjectRef& iHTTP() const { return object(HTTP); }
    [[nodiscard]] const automation::ObjectRef& iProduct() const { return object(Product); }
    [[nodiscard]] const automation::ObjectRef& iScreen() const { return object(Screen); }
    [[nodiscard]] const automation::ObjectRef& iSort() const { return object(Sort); }
    [[nodiscard]] const automation::ObjectRef& iString() const { return object(String); }
    [[nodiscard]] const automation::ObjectRef& iWinAPI() const { return object(WinAPI); }
    [[nodiscard]] const automation::ObjectRef& iXML() const { return object(XML); }

    // Hands over the Excel application whose window and screen updating the library looks after.
    void set_application(const automation::ObjectRef& application) const;

    [[nodiscard]] std::string constant(std::int32_t index) const;

    // The registry of hot keys: who is called under this client's name when a key is pressed, and the constant text
    // of the product on whose behalf keys run.
    void register_hot_keys(const automation::ObjectRef& callback) const;
    void set_hot_key_product(std::string_view text) const;
    // Where Excel finds the macros that keys run; macros that can have keys besides the commands; binding what has a
    // key, from now on until the client is unregistered; the manager.
    void set_hot_key_macros(std::string_view workbook, std::string_view module) const;
    void add_hot_key_macro(const HotKeyMacro& macro) const;
    void bind_hot_keys() const;
    void show_hot_key_manager() const;
    // The keys that this client's commands have now: a number or a macro, and its key; none for those without.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> hot_key_texts() const;

    // What the installation says: whether to show the examples workbook at this start, whether the tutorial is there,
    // and any value by name ("LessonPath"), Empty when it is absent.
    [[nodiscard]] bool shows_examples_at_start() const;
    [[nodiscard]] bool allows_training() const;
    [[nodiscard]] automation::Value machine_value(std::string_view name) const;
    // Before a command (false) and after it (true).
    void command_bracket(bool ended) const;
    // The user's folder for the product's files, ending in a separator; it is made when it is not there.
    [[nodiscard]] std::string data_folder() const;
    // Opens the product's help; when that cannot be, one message says so.
    void show_help() const;
    // A user message in English.
    [[nodiscard]] std::string message(Text number) const;

    // A text of the library's string table: for command n 2000 + n its name, 12000 + n what it does, 22000 + n its
    // default key, 32000 + n its group, 42000 + n its topic in the examples; messages by their numbers. Bad index when
    // there is none.
    [[nodiscard]] std::string text(std::int32_t number) const;
    // The key under which a style of this name stands in a collection.
    [[nodiscard]] std::string style_key(std::string_view style_name) const;
    // The sections of a number format, parted by the ";" that are not quoted.
    [[nodiscard]] std::vector<std::string> number_format_sections(std::string_view format) const;
    // A number format with one decimal place more (step 1) or less (-1) in every section that shows numbers; "General"
    // takes its decimals from how the number shows. And one that shows numbers a thousand times smaller or larger.
    [[nodiscard]] AdjustedNumberFormat with_decimals(std::string_view format, std::int32_t step,
                                                     std::string_view general_shows) const;
    [[nodiscard]] AdjustedNumberFormat with_scale(std::string_view format, std::int32_t step) const;
    // Where the ")" stands, from 1 on, that closes an expression whose "(" stands before it; 0 when nothing does.
    [[nodiscard]] std::int32_t closing_parenthesis(std::string_view expression) const;
    // Whether an application's version text is a major version or a later one.
    [[nodiscard]] bool version_at_least(std::string_view version, std::int32_t major) const;
    // The number that a person typed; nothing when it is none.
    [[nodiscard]] std::optional<double> typed_number(std::string_view text) const;
    // The same question for a dialog's box: when the answer is no, a message names the box ("start value").
    [[nodiscard]] bool check_numeric_field(std::string_view text, std::string_view field_name) const;
    // A text made fit to be part of a defined name.
    [[nodiscard]] std::string name_text(std::string_view text) const;

    // The present date and time.
    [[nodiscard]] automation::Date now() const;
    // The present date and time as en-US shows them, "11/22/2026 9:05:00 PM"; and a date some intervals later, as
    // Visual Basic's DateAdd has it.
    [[nodiscard]] std::string present_time_text() const;
    [[nodiscard]] automation::Date date_add(std::string_view interval, double number, automation::Date date) const;
    // The date that a person typed; nothing when it is none.
    [[nodiscard]] std::optional<automation::Date> typed_date(std::string_view text) const;

    [[nodiscard]] bool file_exists(std::string_view path) const;
    // Renames a file that makes room, so that it stays beside what replaces it: "Name (why).xml". The new path.
    [[nodiscard]] std::string set_aside(std::string_view path, std::string_view why) const;
    // Asks for a file to open, or under which to save: its path, or nothing when the person cancels. The title follows
    // the product's; filter is what the files are called, pattern which are offered ("*.xml").
    [[nodiscard]] std::optional<std::string> open_dialog(std::string_view title, std::string_view filter,
                                                         std::string_view pattern) const;
    [[nodiscard]] std::optional<std::string> save_dialog(std::string_view title, std::string_view filter,
                                                         std::string_view pattern, std::string_view proposed) const;

    // An array of one dimension in Excel's order.
    [[nodiscard]] automation::Value sorted(const automation::Value& array) const;

    // The XML document: see the library's iXML. Nodes are objects with MSXML's nodeName, text and nodeTypedValue, lists
    // of them have Length and Item from 0 on; a node or document that is not there is null. When loading or saving
    // fails, xml_error says why in one line.
    void xml_clear() const;
    [[nodiscard]] automation::ObjectRef xml_load(std::string_view path, std::string_view identifier,
                                                 std::string_view name, std::string_view latest_version) const;
    void xml_start_document(std::string_view root, std::string_view version, std::string_view identifier) const;
    void xml_start_element(std::string_view name) const;
    void xml_write_leaf(std::string_view name, const automation::Value& value) const;
    void xml_end_element(std::string_view name) const;
    [[nodiscard]] automation::ObjectRef xml_find(std::string_view name,
                                                 const automation::ObjectRef& under = nullptr) const;
    [[nodiscard]] automation::ObjectRef xml_children(std::string_view name, const automation::ObjectRef& under) const;
    [[nodiscard]] bool xml_save(std::string_view path) const;
    [[nodiscard]] std::string xml_error() const;

    // Places the application window: 1 maximised, 2 top half, 3 bottom half, 4 left half, 5 right half, 6 centred.
    void place_window(std::int32_t placement) const;

  private:
    [[nodiscard]] automation::ObjectRef hot_keys() const;  // the registry

    enum Place : std::size_t {
        Const,
        Date,
        DocProp,
        File,
        GUID,
        HotKeys,
        HTTP,
        Product,
        Screen,
        Sort,
        String,
        WinAPI,
        XML
    };
    static constexpr std::array<std::string_view, 13> names{"iConst",   "iDate",   "iDocProp", "iFile",   "iGUID",
                                                            "iHotKeys", "iHTTP",   "iProduct", "iScreen", "iSort",
                                                            "iString",  "iWinAPI", "iXML"};
};

}  // namespace kestrune::core
