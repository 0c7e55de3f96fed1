#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "automation/MemberTable.h"
#include "brvblib/Library.h"
#include "brvblib/xml/XmlWriter.h"

namespace kestrune::brvblib {

// One XML document at a time: built element by element or loaded from a file, then read node by node or saved.
// The root element says whose document it is (an identifier) and how it is laid out (a version).
class iXML : public automation::Served<iXML> {
  public:
    explicit iXML(std::shared_ptr<Library> library) : library_(std::move(library)) {}
    static const automation::MemberTable& members();

  private:
    void clear();

    // The root node of a file's document; Nothing, with LastError saying why in one line, when the file cannot be read,
    // is no XML, has a document type, or is no document of this identifier. name: who asks, as the line tells it. Given
    // the version that the client knows, a document of a later major version is not loaded either. The document held
    // before goes in any case. Fails with class-not-registered where there is nothing to read XML with.
    [[nodiscard]] automation::ObjectRef load(const std::string& path, const std::string& identifier,
                                             const std::string& name, const std::optional<std::string>& version);
    [[nodiscard]] std::string version() const { return version_; }
    [[nodiscard]] std::string last_error() const { return last_error_; }

    void start_document(const std::string& root, const std::string& version, const std::string& identifier);
    void start_element(const std::string& name);
    void write_leaf(const std::string& name, const automation::Value& value);
    void end_element(const std::string& name);

    // The first child of a node that has a name, else the first element of that name anywhere below it; without a node,
    // the root element or the first below it. Nothing when there is none.
    [[nodiscard]] automation::ObjectRef find_node(const std::string& name, const automation::Value& under);
    // The list of a node's children that have a name: Length, and Item from 0 on.
    [[nodiscard]] automation::ObjectRef child_nodes(const std::string& name, const automation::ObjectRef& under);

    // Whether the document was saved; LastError says why not. A file that stands there is replaced whole or not at all.
    [[nodiscard]] bool save(const std::string& path);

    XmlWriter& writer(std::string_view operation);
    // The document as it stands: its text, and its root element.
    [[nodiscard]] std::string text() const;
    XmlElementRef root();

    std::shared_ptr<Library> library_;
    std::optional<XmlWriter> writer_;  // while the document is one being built
    std::string loaded_;               // the text of one that was loaded
    XmlElementRef root_;               // null until somebody reads the document
    std::string version_;
    std::string last_error_;
};

}  // namespace kestrune::brvblib
