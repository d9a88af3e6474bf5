// What is registered: complete, and removed as a whole.
#include "praxen/server/registration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

#include "praxen/automation/guid.h"
#include "praxen/core/text.h"
#include "praxen/describe/identifiers.h"
#include "praxen/factory/classes.h"
#include "tools/generate/manifest.h"

namespace praxen::detail {
namespace {

size_t Count(const std::string& text, const std::string& part) {
  size_t count = 0;
  for (size_t at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++count;
  return count;
}

TEST(Registration, EveryValueGoesWithItsKey) {
  const std::vector<std::string> keys = RegistryKeys();
  std::set<std::string> used;
  for (const RegistryValue& value : RegistryValues(u"C:\\Folder\\PraxenHelper.dll")) {
    const auto owner = std::ranges::find_if(keys, [&](const std::string& key) {
      return value.key == key || value.key.starts_with(key + "\\");
    });
    ASSERT_NE(owner, keys.end()) << value.key;
    used.insert(*owner);
  }
  EXPECT_EQ(used.size(), keys.size());
  EXPECT_TRUE(keys.front().starts_with(SharedRegistryKeys().front() + "\\"));
}

TEST(Registration, NamesServerProxyAndTypeLibrary) {
  const std::string variable = "CLSID\\" + GuidToText(ClassId(*FindClass(u"Variable")));
  const std::string message = "Interface\\" + GuidToText(InterfaceId(*FindClass(u"IMsg")));
  const std::u16string library = FromUtf8(GuidToText(TypeLibraryId()));
  const RegistryValue expected[] = {
      {"PraxenHelper.Variable\\CLSID", "", FromUtf8(variable.substr(6))},
      {variable + "\\InprocServer32", "", u"C:\\Folder\\PraxenHelper.dll"},
      {variable + "\\InprocServer32", "ThreadingModel", u"Apartment"},
      {variable + "\\ProgID", "", u"PraxenHelper.Variable"},
      {variable + "\\TypeLib", "", library},
      {message, "", u"_IMsg"},
      {message + "\\ProxyStubClsid32", "", u"{00020424-0000-0000-C000-000000000046}"},
      {message + "\\TypeLib", "", library},
      {message + "\\TypeLib", "Version", u"3.10"},
      {SharedRegistryKeys().front() + "\\3.10\\0\\win64", "", u"C:\\Folder\\PraxenHelper.dll"},
      {SharedRegistryKeys().front() + "\\3.10\\HELPDIR", "", u"C:\\Folder"},
  };
  const auto values = RegistryValues(u"C:\\Folder\\PraxenHelper.dll");
  for (const RegistryValue& one : expected) {
    const auto found = std::ranges::find_if(values, [&](const RegistryValue& value) {
      return value.key == one.key && value.name == one.name;
    });
    ASSERT_NE(found, values.end()) << one.key << " " << one.name;
    EXPECT_TRUE(found->value == one.value) << one.key << " " << one.name;
  }
  const std::string kind = "CLSID\\" + GuidToText(ClassId(*FindClass(u"IMsg")));
  EXPECT_TRUE(std::ranges::none_of(
      values, [&](const RegistryValue& value) { return value.key.starts_with(kind); }));
}

TEST(Registration, TheManifestNamesTheSame) {
  const std::string manifest = GenerateManifest();
  EXPECT_EQ(Count(manifest, "<comClass "), CreatableClasses().size());
  EXPECT_EQ(Count(manifest, "<comInterfaceExternalProxyStub "), AllClasses().size());
  EXPECT_EQ(Count(manifest, "progid=\"PraxenHelper.ObjectFactory\""), 1u);
  EXPECT_EQ(Count(manifest, "clsid=\"" + GuidToText(ClassId(*FindClass(u"IMsg"))) + "\""), 0u);
}

}  // namespace
}  // namespace praxen::detail
