#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

#include "host/xlsx/package/Package.h"

struct XML_ParserStruct;

namespace kestrune::host {

// The name and value pairs of a start tag as expat hands them out, ended by a null.
using XmlAttributes = const char**;

inline constexpr std::string_view TransitionalMain = "http://schemas.openxmlformats.org/spreadsheetml/2006/main";
inline constexpr std::string_view StrictMain = "http://purl.oclc.org/ooxml/spreadsheetml/main";

// One pass of expat over a part. Broken XML, a document type declaration and nesting without end are a PackageError
// with line and column; so is what a handler throws by fail().
class XmlParser {
  public:
    static constexpr int max_depth = 256;

    XmlParser(const Package& package, std::string part);
    virtual ~XmlParser();
    XmlParser(const XmlParser&) = delete;
    XmlParser& operator=(const XmlParser&) = delete;

    void parse(std::string_view text);

  protected:
    // `depth` is 0 for the root. Names come with their prefix.
    virtual void on_start(std::string_view name, XmlAttributes attributes, int depth) = 0;
    virtual void on_end(int depth) = 0;
    virtual void on_text(std::string_view /*text*/) {}

    // Byte offsets in the text: of the tag being handled, and past it.
    [[nodiscard]] std::size_t tag_begin() const;
    [[nodiscard]] std::size_t tag_end() const;
    // An error at the place being parsed.
    [[noreturn]] void fail(std::string message) const;

    // Stop and resume the delivery of character data, which is most of a part and needed in few places.
    void listen(bool to_text);

    [[nodiscard]] const Package& package() const { return package_; }
    [[nodiscard]] const std::string& part() const { return part_; }

  private:
    template <class Call>
    void guarded(Call&& call);
    static void start(void* self, const char* name, const char** attributes);
    static void end(void* self, const char* name);
    static void text(void* self, const char* characters, int length);
    static void doctype(void* self, const char*, const char*, const char*, int);

    const Package& package_;
    std::string part_;
    XML_ParserStruct* parser_;
    int depth_ = 0;
    std::exception_ptr failure_;
};

// Throws for a text that is not well-formed; answers whether its root is in the strict namespace. `root` is the local
// name that the root must have, in one of the two main namespaces.
bool check_xml(const Package& package, const std::string& part, std::string_view text, std::string_view root);

// Where in a text an offset stands, both 1-based.
struct LineAndColumn {
    std::size_t line = 1;
    std::size_t column = 1;
};
[[nodiscard]] LineAndColumn place_of(std::string_view text, std::size_t offset);

// The namespace that the prefix of `name` (a start tag's qualified name) is bound to by these attributes.
[[nodiscard]] std::string_view namespace_of(std::string_view name, XmlAttributes attributes);

}  // namespace kestrune::host
