// The table of names.
#include "praxen/xml/xml_name.h"

#include <mutex>

namespace praxen::detail {
namespace {

class NameTable {
 public:
  // The table outlives every static object that may still hold a name.
  static NameTable& Shared() {
    static NameTable& table = *new NameTable;
    return table;
  }

  XmlName Acquire(std::u16string_view name) {
    const std::lock_guard lock(mutex_);
    auto entry = users_.find(name);
    if (entry == users_.end()) entry = users_.emplace(name, 0).first;
    ++entry->second;
    return &entry->first;
  }

  void Release(XmlName name) {
    const std::lock_guard lock(mutex_);
    const auto entry = users_.find(*name);
    if (--entry->second == 0) users_.erase(entry);
  }

 private:
  std::mutex mutex_;
  std::map<std::u16string, size_t, std::less<>> users_;
};

}  // namespace

XmlName InternXmlName(std::u16string_view name) { return NameTable::Shared().Acquire(name); }

XmlName XmlNameUser::Intern(std::u16string_view name) {
  const auto known = names_.find(name);
  if (known != names_.end()) return known->second;
  const XmlName acquired = NameTable::Shared().Acquire(name);
  names_.emplace(*acquired, acquired);
  return acquired;
}

void XmlNameUser::Clear() {
  for (const auto& [text, name] : names_) NameTable::Shared().Release(name);
  names_.clear();
}

}  // namespace praxen::detail
