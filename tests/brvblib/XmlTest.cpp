// The XML document service, from the same source on pugixml and, under Wine, on MSXML.
#include <filesystem>
#include <fstream>
#include <iterator>

#include "brvblib/LibraryTest.h"
#include "brvblib/SystemServices.h"
#include "brvblib/TestFolder.h"

namespace kestrune::brvblib {
namespace {

namespace fs = std::filesystem;

using automation::AutomationError;
using automation::Date;
using automation::Empty;
using automation::get;
using automation::ObjectRef;
using automation::Value;
using testing::AllOf;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

constexpr const char* identifier = "7D3E9B20-4C1A-4f85-A6D2-93B0E5C71F48";

// Texts that a careless writer or reader changes.
const std::pair<const char*, Value> leaves[] = {
    {"Text", "BR General"},
    {"Markup", "<a href=\"x\">&amp;'</a>]]>"},
    {"Blanks", "  #,##0   ;(0) "},
    {"OneBlank", " "},
    {"Nothing", ""},
    {"Lines", "one\r\ntwo\nthree\tfour\rfive"},
    {"Accents", "\xC3\x84\xC3\xB6 \xE2\x82\xAC \xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x98\x80"},
    {"Yes", true},
    {"No", false},
    {"Whole", -2147483647},
    {"Color", 16777215},
    {"Height", 12.75},
    {"Tenth", 0.1},
    {"Tiny", 1e-300},
    {"Ten", 10.0},
    {"Day", Date{46053}},               // 31 January 2026
    {"Moment", Date{46053.521015625}},  // 12:30:15.750
    {"Early", Date{-1.25}},             // 29 December 1899, 6:00
};

struct XmlTest : LibraryTest {
    XmlTest() {
        add_system_services(services);
        load();
    }

    [[nodiscard]] std::string path(const char* name) const {
        const std::u8string text = (folder / name).u8string();
        return {text.begin(), text.end()};
    }
    static std::string bytes_of(const fs::path& file) {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void put_file(const char* name, std::string_view bytes) const {
        std::ofstream(folder / name, std::ios::binary) << bytes;
    }
    ObjectRef load_file(const char* name) { return wrapper.xml_load(path(name), identifier, "Brannoch", "3.0"); }
    // A leaf's value in a file that holds one element below the root; a failure is its line.
    std::string leaf_of(std::string_view element) {
        put_file("leaf.xml", std::string("<K version='3.0' id='") + identifier +
                                 "' xmlns:dt='urn:schemas-microsoft-com:datatypes'>" + std::string(element) + "</K>");
        if (!load_file("leaf.xml")) return wrapper.xml_error();
        try {
            const Value value = get(*wrapper.xml_find("A"), "nodeTypedValue");
            return std::to_string(static_cast<int>(value.kind())) + " " + automation::to_text(value);
        } catch (const AutomationError& error) {
            return error.what();
        }
    }
    void write_document() {
        wrapper.xml_start_document("Kestrune", "3.0", identifier);
        wrapper.xml_start_element("UserSettings");
        wrapper.xml_start_element("Styles");
        for (const char* name : {"BR General", "BR Euros"}) {
            wrapper.xml_start_element("Style");
            wrapper.xml_write_leaf("FriendlyName", name);
            wrapper.xml_end_element("Style");
        }
        wrapper.xml_end_element("Styles");
        for (const auto& [name, value] : leaves) wrapper.xml_write_leaf(name, value);
        wrapper.xml_start_element("Empty");
        wrapper.xml_end_element("Empty");
        wrapper.xml_end_element("UserSettings");
        wrapper.xml_end_element("Kestrune");
    }

    TestFolder place;
    const fs::path& folder = place.path();
};

TEST_F(XmlTest, WritesTheSameFileOnEverySystem) {
    write_document();
    ASSERT_TRUE(wrapper.xml_save(path("out.xml"))) << wrapper.xml_error();
    const std::string written = bytes_of(folder / "out.xml");
    EXPECT_EQ(written, bytes_of(KESTRUNE_SOURCE_DIR "/tests/brvblib/golden/every-type.xml"));
    EXPECT_THAT(written, StartsWith("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\r\n<Kestrune "));
    // What is saved again after loading stays what it was.
    ASSERT_TRUE(load_file("out.xml")) << wrapper.xml_error();
    ASSERT_TRUE(wrapper.xml_save(path("again.xml")));
    write_document();
    ASSERT_TRUE(wrapper.xml_save(path("out.xml"))) << "over the file that is there";
    EXPECT_EQ(bytes_of(folder / "out.xml"), written);
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 2) << "nothing stays beside";
}

TEST_F(XmlTest, ReadsBackWhatWasWritten) {
    const ObjectRef root =
        wrapper.xml_load(KESTRUNE_SOURCE_DIR "/tests/brvblib/golden/every-type.xml", identifier, "Brannoch", "3.0");
    ASSERT_TRUE(root) << wrapper.xml_error();
    EXPECT_EQ(get(*root, "nodeName"), Value("Kestrune"));
    EXPECT_EQ(get(*part("iXML"), "Version"), Value("3.0"));
    const ObjectRef settings = wrapper.xml_find("UserSettings");
    for (const auto& [name, value] : leaves) {
        const ObjectRef leaf = wrapper.xml_find(name, settings);
        ASSERT_TRUE(leaf) << name;
        const Value read = get(*leaf, "nodeTypedValue");
        ASSERT_EQ(read.kind(), value.kind()) << name;
        if (const auto* date = value.if_is<Date>()) {
            EXPECT_NEAR(read.if_is<Date>()->serial, date->serial, 1e-9) << name;
        } else {
            EXPECT_EQ(read, value) << name << " '" << automation::to_text(read) << "'";
        }
    }
}

TEST_F(XmlTest, FindsNodes) {
    write_document();
    const auto names_of = [&](const ObjectRef& list) {
        std::vector<std::string> names;
        for (std::int32_t i = 0; i < automation::to_integer(get(*list, "Length")); ++i) {
            const ObjectRef style = automation::to_object(automation::get(*list, "Item", {i}));
            names.push_back(automation::to_text(get(*wrapper.xml_find("FriendlyName", style), "nodeTypedValue")));
        }
        return names;
    };
    // A document can be read while it is held, before it is saved.
    const ObjectRef styles = wrapper.xml_find("Styles");
    EXPECT_EQ(names_of(wrapper.xml_children("Style", styles)), (std::vector<std::string>{"BR General", "BR Euros"}));
    EXPECT_TRUE(names_of(wrapper.xml_children("FriendlyName", styles)).empty()) << "children only";
    EXPECT_EQ(get(*wrapper.xml_find("Kestrune"), "nodeName"), Value("Kestrune")) << "the root is found too";
    EXPECT_EQ(get(*wrapper.xml_find("FriendlyName"), "text"), Value("BR General")) << "the first, however deep";
    EXPECT_EQ(wrapper.xml_find("Style", wrapper.xml_find("Empty")), nullptr) << "below, not anywhere";
    EXPECT_EQ(wrapper.xml_find("friendlyname"), nullptr) << "names have their case";
    EXPECT_THROW(static_cast<void>(wrapper.xml_find("*[1]")), AutomationError) << "a name, not a query";
    EXPECT_THROW(static_cast<void>(wrapper.xml_children("Style", nullptr)), AutomationError);
    wrapper.xml_clear();
    EXPECT_THROW(static_cast<void>(wrapper.xml_find("Styles")), AutomationError);
    EXPECT_EQ(get(*styles, "nodeName"), Value("Styles")) << "a node outlives the service's interest in it";
}

TEST_F(XmlTest, ReadsValuesWrittenByHand) {
    const struct {
        const char* element;
        const char* value;  // the kind's number and the value as text
    } cases[] = {
        {"<A>True</A>", "8 True"},
        {"<A/>", "8 "},
        {"<A dt:dt='i4'> 7 </A>", "4 7"},
        {"<A dt:dt='boolean'>1</A>", "3 True"},
        {"<A dt:dt='r8'>1.5E3</A>", "5 1500"},
        {"<A dt:dt='dateTime'>2026-01-31T06:00:00</A>", "6 46053.25"},
        {"<A dt:dt='date'>2026-01-31</A>", "6 46053"},
        {"<A dt:dt='string'>7</A>", "8 7"},
        {"<A>a<!-- not this -->b</A>", "8 ab"},
        {"<A><![CDATA[<b>&amp;]]></A>", "8 <b>&amp;"},
        {"<A>&#8364;&lt;</A>", "8 \xE2\x82\xAC<"},
    };
    for (const auto& c : cases) EXPECT_EQ(leaf_of(c.element), c.value) << c.element;
}

TEST_F(XmlTest, ReadsFilesFromAnyEditor) {
    const std::string body = std::string("<!-- by hand --><Kestrune  version = \"2.1\"\n\tid='{") + identifier +
                             "}'><!-- x -->\r\n\t<A>\xC3\xA9\xF0\x9F\x98\x80</A>\r\n</Kestrune>\n<!-- end -->\n";
    const auto utf16 = [](const std::string& text, bool big) {
        std::string bytes = big ? "\xFE\xFF" : "\xFF\xFE";
        for (const char16_t unit : fs::path(std::u8string(text.begin(), text.end())).u16string()) {
            const char low = static_cast<char>(unit & 0xFFU);
            const char high = static_cast<char>(unit >> 8U);
            bytes += big ? high : low;
            bytes += big ? low : high;
        }
        return bytes;
    };
    const std::string utf16_declared = "<?xml version='1.0' encoding='UTF-16'?>\r\n" + body;
    const std::string files[] = {body,
                                 "<?xml version=\"1.0\"?>" + body,
                                 "<?xml version=\"1.0\" encoding=\"utf-8\" standalone=\"yes\"?>\n" + body,
                                 "\xEF\xBB\xBF<?xml version='1.0' encoding='UTF-8'?>\n" + body,
                                 utf16(utf16_declared, false),
                                 utf16(utf16_declared, true),
                                 utf16(utf16_declared, false).substr(2),
                                 "\n\n<?sheet x?>\n" + body};
    for (const std::string& file : files) {
        put_file("hand.xml", file);
        ASSERT_TRUE(load_file("hand.xml")) << wrapper.xml_error() << "\n" << file;
        EXPECT_EQ(get(*wrapper.xml_find("A"), "text"), Value("\xC3\xA9\xF0\x9F\x98\x80")) << file;
    }
}

TEST_F(XmlTest, RefusesWhatIsNoDocumentOfThisKind) {
    const std::string head = std::string("<Kestrune version=\"3.0\" id=\"") + identifier + "\">";
    std::string laughs = "<!DOCTYPE Kestrune [<!ENTITY a0 \"ha\">";
    for (int i = 1; i < 30; ++i) {
        const std::string before = "&a" + std::to_string(i - 1) + ";";
        laughs += "<!ENTITY a" + std::to_string(i) + " \"" + before + before + "\">";
    }
    std::string deep = head;
    for (int i = 0; i < 100'000; ++i) deep += "<A>";
    const struct {
        std::string bytes;
        const char* why;
    } cases[] = {
        {"", "is empty"},
        {" \r\n", "is empty"},
        {"<!-- only -->", "is empty"},
        {"not xml", "is not an XML document"},
        {std::string("PK\x03\x04\0\0", 6), "is not an XML document"},
        {head + "<A>1</A>", ""},  // cut off
        {head + "\n\n<A></B></Kestrune>", ""},
        {head + "</Kestrune><More/>", ""},
        {head + "</Kestrune>more", ""},
        {deep, ""},
        {laughs + "]>" + head + "&a29;</Kestrune>", "has a document type, which is not allowed here"},
        {"<?xml version='1.0'?><!-- --><!DOCTYPE Kestrune SYSTEM \"file:///etc/passwd\">" + head + "</Kestrune>",
         "has a document type"},
        {head + "\n\xE9</Kestrune>", "line 2: is not UTF-8 text"},
        {"<?xml version='1.0' encoding='shift_jis'?>" + head + "</Kestrune>",
         "is encoded in shift_jis, which is neither UTF-8 nor UTF-16"},
        {"<Kestrune version=\"3.0\"/>", "is no Brannoch document: its identifier is missing"},
        {"<Kestrune version=\"3.0\" id=\"7D3E\"/>", "is no Brannoch document: its identifier is '7D3E'"},
        {std::string("<Kestrune id=\"") + identifier + "\"/>", "its version '' is none"},
        {std::string("<Kestrune version=\"4.0\" id=\"") + identifier + "\"/>",
         "its version 4.0 is later than 3.0, the latest that can be read"},
        {std::string((16U << 20U) + 1, ' '), "is longer than 16 MiB"},
    };
    write_document();
    for (const auto& c : cases) {
        const std::string shown = c.bytes.substr(0, 300);
        put_file("bad.xml", c.bytes);
        EXPECT_EQ(load_file("bad.xml"), nullptr) << shown;
        EXPECT_THAT(wrapper.xml_error(),
                    AllOf(StartsWith(path("bad.xml") + ": "), HasSubstr(c.why), Not(HasSubstr("\n"))))
            << shown;
        EXPECT_THROW(static_cast<void>(wrapper.xml_find("UserSettings")), AutomationError) << "nothing is held";
    }
    EXPECT_EQ(load_file("missing.xml"), nullptr);
    EXPECT_THAT(wrapper.xml_error(), StartsWith(path("missing.xml") + ": "));
    fs::create_directory(folder / "folder.xml");
    EXPECT_EQ(load_file("folder.xml"), nullptr);
    EXPECT_EQ(wrapper.xml_error(), path("folder.xml") + ": is a folder");
    EXPECT_EQ(wrapper.xml_load("", identifier, "Brannoch", "3.0"), nullptr);
}

TEST_F(XmlTest, KeepsTheOldFileWhenSavingFails) {
    put_file("kept.xml", "old");
    EXPECT_FALSE(wrapper.xml_save(path("kept.xml"))) << "there is no document";
    wrapper.xml_start_document("Kestrune", "3.0", identifier);
    wrapper.xml_start_element("Open");
    EXPECT_FALSE(wrapper.xml_save(path("kept.xml")));
    EXPECT_EQ(wrapper.xml_error(), path("kept.xml") + ": the element 'Open' is not ended");
    wrapper.xml_end_element("Open");
    EXPECT_FALSE(wrapper.xml_save(path("no/such/folder.xml")));
    EXPECT_THAT(wrapper.xml_error(), StartsWith(path("no/such/folder.xml") + ": "));
    fs::permissions(folder / "kept.xml", fs::perms::owner_read | fs::perms::group_read | fs::perms::others_read);
    // Nothing is read-only for a user who may do everything.
    const bool everything = std::ofstream(folder / "kept.xml", std::ios::app).good();
    if (!everything) {
        EXPECT_FALSE(wrapper.xml_save(path("kept.xml")));
    }
    EXPECT_EQ(bytes_of(folder / "kept.xml"), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1) << "nothing stays beside";
    EXPECT_TRUE(wrapper.xml_save(path("new.xml"))) << wrapper.xml_error();
    fs::permissions(folder / "kept.xml", fs::perms::owner_all);
}

TEST_F(XmlTest, RefusesMisuse) {
    EXPECT_EQ(answer("iXML", "StartElement", "A"), "<iXML.StartElement: no document was started>");
    EXPECT_EQ(answer("iXML", "StartDocument", "a b", "3.0", identifier),
              "<iXML.StartDocument: 'a b' cannot be the name of an element>");
    wrapper.xml_start_document("Kestrune", "3.0", identifier);
    EXPECT_EQ(answer("iXML", "EndElement", "A"), "<iXML.EndElement: the open element is 'Kestrune', not 'A'>");
    EXPECT_EQ(answer("iXML", "WriteLeaf", "1A", "x"), "<iXML.WriteLeaf: '1A' cannot be the name of an element>");
    EXPECT_EQ(answer("iXML", "WriteLeaf", "A", automation::Null{}),
              "<iXML.WriteLeaf: a leaf holds a text, a number, a Boolean or a date>");
    // What XML cannot carry is left out, and the rest of the text stays.
    wrapper.xml_write_leaf("A",
                           "a\x01"
                           "b\xFF"
                           "c");
    wrapper.xml_end_element("Kestrune");
    EXPECT_EQ(get(*wrapper.xml_find("A"), "text"), Value("ab\xEF\xBF\xBD"
                                                         "c"));
    EXPECT_EQ(answer("iXML", "WriteLeaf", "B", 1), "<iXML.WriteLeaf: the document is closed>");
}

}  // namespace
}  // namespace kestrune::brvblib
