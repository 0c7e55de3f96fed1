#pragma once

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"

namespace kestrune::brvblib {

// The hot keys of all clients: who is called back, which command has which key, and what the user made of that. Each
// library object has a registry, and all of them in a process show the same keys. Keys are texts ("Ctrl+Shift+4", read
// in any case and with "-" for "+"); commands are their client's numbers, or macros that it added. A client may be left
// out where only one has the command. What cannot be is refused in one line, and nothing changes.
class HotKeyRegistry : public automation::Served<HotKeyRegistry> {
  public:
    explicit HotKeyRegistry(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    using OptionalText = std::optional<std::string>;

    // Registering a name again replaces its callback. Fails with object-required for Nothing.
    void register_callback(const std::string& client_name, const automation::ObjectRef& callback);
    // Whether the client had one. A client that is unregistered from the library loses it as well.
    bool unregister_callback(const std::string& client_name);
    // A client's callback; Nothing when it has none.
    [[nodiscard]] automation::ObjectRef callback(const std::string& client_name) const;

    // The constant text of the product on whose behalf keys run.
    [[nodiscard]] std::string product() const { return product_; }
    void set_product(const std::string& text) { product_ = text; }

    // The open workbook and its module in which Excel finds a client's macros: RunMacro with a command's number as its
    // argument, and those that AddMacro names.
    void set_macros(const std::string& client_name, const std::string& workbook, const std::string& module);
    // A macro that can have a key besides the commands of the client's command array.
    void add_macro(const std::string& client_name, const std::string& macro, const std::string& name,
                   const std::string& description, const std::string& key, const std::string& group);
    // Binds the keys in the library's Excel, now and after every change; gives them all back.
    void bind();
    void unbind() { keys().release(); }

    // Whether the keys are on. Remembered, as the user's keys are.
    [[nodiscard]] bool enabled() { return keys().choices().enabled; }
    void set_enabled(bool on) { keys().set_enabled(on); }

    // A row a command, in columns from 1: client, product, command, name, description, group, key, default key, status
    // ("default", "chosen", "cleared", "conflict with ..." or nothing) and what the key does in Excel by itself.
    [[nodiscard]] automation::Array table();
    // A command's key; empty for none.
    [[nodiscard]] std::string key(const std::string& command, const OptionalText& client_name);
    // The row in the table, from 1, of the command that has a key; 0 when nobody has it.
    [[nodiscard]] std::int32_t owner(const std::string& key);
    void set_key(const std::string& command, const std::string& key, const OptionalText& client_name);
    void clear_key(const std::string& command, const OptionalText& client_name);
    void reset_key(const std::string& command, const OptionalText& client_name);
    void reset_all_keys() { keys().reset_all(); }
    // Keys that do nothing at all.
    void swallow(const std::string& key) { keys().swallow(key); }
    void unswallow(const std::string& key) { keys().unswallow(key); }
    [[nodiscard]] automation::Array swallowed();

    // A key in its own spelling.
    [[nodiscard]] std::string normal_key(const std::string& key) const;
    // What a key does in Excel by itself; empty for nothing.
    [[nodiscard]] std::string excel_meaning(const std::string& key) const;
    // Why the user's keys could not be read; empty when they could. And the file in which they are kept.
    [[nodiscard]] std::string problem() { return keys().problem(); }
    [[nodiscard]] std::string path() const { return keys().path(); }

    // Runs the command that has a key, by its client's callback; whether one ran.
    bool run_key(const std::string& key);
    // Shows the commands of all clients in a dialog, in which the user gives them keys.
    void show_manager();

    [[nodiscard]] HotKeys& keys() const { return *library_->hot_keys; }

    std::shared_ptr<Library> library_;
    std::string product_;
};

}  // namespace kestrune::brvblib
