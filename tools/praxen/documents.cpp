// The families of documents, and the work that commands do on files.
#include "tools/praxen/documents.h"

#include <system_error>

#include "praxen/core/error.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/document_text.h"
#include "tools/praxen/progress.h"

namespace praxen::detail {

namespace {

DecodedText ReadFile(const std::string& file, Progress& progress) {
  return Decode(ReadBytes(file, progress));
}

bool IsEncoded(const std::string& file, const DecodedText& decoded) {
  if (!decoded.malformed) return true;
  const Place place = PlaceAt(decoded.text, *decoded.malformed);
  PrintError(file, InvalidXml(u"The bytes are neither UTF-8 nor UTF-16.", place), decoded.text);
  return false;
}

bool WorkOn(const std::string& file, const Text& text,
            const std::function<bool(const std::string& file, const Text& text)>& work) {
  try {
    return work(file, text);
  } catch (const Error& error) {
    PrintError(file, error, text);
    return false;
  }
}

}  // namespace

int ForEachDocument(const std::vector<std::string>& files,
                    const std::function<bool(const std::string& file, const Text& text)>& work) {
  Progress progress(files.size());
  bool good = true;
  for (const std::string& file : files) {
    try {
      const DecodedText decoded = ReadFile(file, progress);
      progress.Clear();
      good = IsEncoded(file, decoded) && WorkOn(file, decoded.text, work) && good;
    } catch (const std::system_error& error) {
      progress.Clear();
      PrintError(file, error.code().message());
      good = false;
    }
    progress.FinishFile();
  }
  return good ? 0 : 1;
}

}  // namespace praxen::detail
