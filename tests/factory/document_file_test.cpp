// Tests of documents in files: encodings, and what stays when storing fails.
#include "praxen/factory/document_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "praxen/core/error.h"

namespace praxen::detail {
namespace {

namespace fs = std::filesystem;
using std::string_literals::operator""s;

class DocumentFile : public testing::Test {
 protected:
  DocumentFile() { fs::create_directories(folder_); }
  ~DocumentFile() override { fs::remove_all(folder_); }

  fs::path folder_ = fs::path(testing::TempDir()) / "praxen_document_file";
  fs::path file_ = folder_ / fs::path(u"Füllstand.xml");
};

std::string Bytes(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void Store(const fs::path& file, const std::string& bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

TEST_F(DocumentFile, IsReadInTheEncodingOfItsFirstBytes) {
  for (const auto& bytes :
       {"<\xC3\xA4/>"s, "\xEF\xBB\xBF<\xC3\xA4/>"s, "<\0\xE4\0/\0>\0"s, "\0<\0\xE4\0/\0>"s,
        "\xFF\xFE<\0\xE4\0/\0>\0"s, "\xFE\xFF\0<\0\xE4\0/\0>"s}) {
    Store(file_, bytes);
    EXPECT_EQ(LoadDocument(file_), u"<ä/>") << testing::PrintToString(bytes);
  }
}

TEST_F(DocumentFile, OfOtherBytesIsRefusedWithTheirPlace) {
  for (const auto& bytes : {"<a>\n\xC3</a>"s, "<\0a\0>\0\n\0<"s}) {
    Store(file_, bytes);
    try {
      LoadDocument(file_);
      ADD_FAILURE() << testing::PrintToString(bytes);
    } catch (const Error& error) {
      EXPECT_EQ(error.number(), ObjectErrorCode(603));
      EXPECT_EQ(error.place(), (Place{2, 1}));
    }
  }
}

TEST_F(DocumentFile, DeclaresTheEncodingInWhichItIsStored) {
  struct Case {
    Text document;
    Encoding encoding;
    std::u16string_view stored;
  };
  for (const auto& [document, encoding, stored] : std::vector<Case>{
           {u"<?xml version='1.0' encoding='UTF-16'?>\r\n<ä/>", Encoding::Utf8,
            u"<?xml version='1.0' encoding='UTF-8'?>\r\n<ä/>"},
           {u"<?xml version=\"1.0\" encoding = \"ISO-8859-1\" standalone='yes' ?><a/>",
            Encoding::Utf16,
            u"<?xml version=\"1.0\" encoding = \"UTF-16\" standalone='yes' ?><a/>"},
           {u"<?xml version='1.0'?><a encoding='x'/>", Encoding::Utf8,
            u"<?xml version='1.0'?><a encoding='x'/>"},
           {u"<a encoding='x'/>", Encoding::Utf8, u"<a encoding='x'/>"},
           {u"<?xml", Encoding::Utf8, u"<?xml"}}) {
    SaveDocument(file_, document, encoding);
    EXPECT_EQ(LoadDocument(file_), stored);
    EXPECT_EQ(Bytes(file_).starts_with("\xFF\xFE"), encoding == Encoding::Utf16);
  }
}

TEST_F(DocumentFile, IsReplacedAsAWhole) {
  SaveDocument(file_, u"<a/>");
  fs::permissions(file_, fs::perms::owner_read | fs::perms::owner_write);
  SaveDocument(file_, u"<b/>");
  EXPECT_EQ(LoadDocument(file_), u"<b/>");
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_), {}), 1) << "something is left over";
#ifndef _WIN32
  EXPECT_EQ(fs::status(file_).permissions(), fs::perms::owner_read | fs::perms::owner_write);
  const fs::path link = folder_ / "link.xml";
  fs::create_symlink(file_.filename(), link);
  SaveDocument(link, u"<c/>");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(LoadDocument(file_), u"<c/>");
  fs::create_symlink("new.xml", folder_ / "new_link.xml");
  SaveDocument(folder_ / "new_link.xml", u"<d/>");
  EXPECT_EQ(LoadDocument(folder_ / "new.xml"), u"<d/>");
  fs::create_symlink("loop.xml", folder_ / "loop.xml");
  EXPECT_THROW(SaveDocument(folder_ / "loop.xml", u"<e/>"), fs::filesystem_error);
#endif
}

TEST_F(DocumentFile, TellsWhatCannotBeReadOrStored) {
  EXPECT_THROW(LoadDocument(file_), fs::filesystem_error);
  EXPECT_THROW(LoadDocument(folder_), fs::filesystem_error);
  const fs::path missing = folder_ / "missing" / "a.xml";
  try {
    SaveDocument(missing, u"<a/>");
    ADD_FAILURE();
  } catch (const fs::filesystem_error& error) {
    EXPECT_EQ(error.path1(), missing);
    EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
  }
  // As long as a name may be.
  const fs::path longest = folder_ / (std::string(251, 'n') + ".xml");
  SaveDocument(longest, u"<a/>");
  EXPECT_EQ(LoadDocument(longest), u"<a/>");
  EXPECT_THROW(SaveDocument(folder_, u"<a/>"), fs::filesystem_error);
#ifdef __linux__
  EXPECT_THROW(SaveDocument("/dev/full", u"<a/>"), fs::filesystem_error);
#endif
}

}  // namespace
}  // namespace praxen::detail
