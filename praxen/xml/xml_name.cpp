// The table of names.
#include "praxen/xml/xml_name.h"

#include <map>
#include <mutex>

namespace praxen::detail {
class NameTable {
 public:
  // Users of names hold the table, so that it outlives those that are static objects.
  static const std::shared_ptr<NameTable>& Shared() {
    static const std::shared_ptr<NameTable> table = std::make_shared<NameTable>();
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

XmlName InternXmlName(std::u16string_view name) { return NameTable::Shared()->Acquire(name); }

XmlNameUser::XmlNameUser() : table_(NameTable::Shared()) {}

XmlNameUser::~XmlNameUser() { Clear(); }

XmlName XmlNameUser::Intern(std::u16string_view name) {
  const auto known = names_.find(name);
  if (known != names_.end()) return known->second;
  const XmlName acquired = table_->Acquire(name);
  names_.emplace(*acquired, acquired);
  return acquired;
}

void XmlNameUser::Clear() {
  for (const auto& [text, name] : names_) table_->Release(name);
  names_.clear();
}

}  // namespace praxen::detail
