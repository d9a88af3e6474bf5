// "praxen convert": reads documents and writes them anew.
#include "tools/praxen/convert_command.h"

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "praxen/core/error.h"
#include "praxen/describe/description.h"
#include "praxen/factory/read_document.h"
#include "praxen/xml/xml_markup.h"
#include "tools/praxen/diagnostics.h"
#include "tools/praxen/documents.h"
#include "tools/praxen/encoding_option.h"
#include "tools/praxen/terminal.h"

namespace praxen::detail {

namespace {

struct ConvertOptions {
  std::shared_ptr<std::vector<std::string>> files;
  std::string file;
  Encoding encoding = Encoding::Utf8;
  bool encodingGiven = false, lossy = false;
};

// Comments and processing instructions, the declaration included.
size_t CountNotes(std::u16string_view text) {
  size_t count = 0;
  for (XmlMarkupReader reader(text); reader.Next();) {
    const XmlMarkupKind kind = reader.markup().kind;
    if (kind == XmlMarkupKind::Comment || kind == XmlMarkupKind::Instruction) ++count;
  }
  return count;
}

// Prints what the document has and the text that is written does not; returns whether that is
// nothing.
bool TellLosses(const Document& document, const Losses& losses, const Text& written,
                Output& output) {
  SourceLines lines(document.text);
  for (const Loss& loss : losses) {
    PrintHead(output.err, Severity::Warning, document.name, loss.place,
              Printable(loss.description));
    output.err << lines.At(loss.place);
  }
  const size_t declaration = document.text.view().starts_with(u"<?xml") ? 0 : 1;
  const size_t had = CountNotes(document.text) + declaration, kept = CountNotes(written);
  if (had > kept) {
    PrintHead(
        output.err, Severity::Warning, document.name, {},
        "comments and processing instructions are left out (" + std::to_string(had - kept) + ')');
  }
  return losses.empty() && had <= kept;
}

bool Convert(const Document& document, const ConvertOptions& options, Output& output) {
  Losses losses;
  const Ref<Object> object = ReadDocument(document.text, &losses);
  const Text written = RequireClass<SerializableObject>(object)->Serialize();
  if (!TellLosses(document, losses, written, output) && !options.lossy) {
    throw Error(0, {}, u"not converted, since something would be lost; --lossy converts it"_text);
  }
  const Encoding encoding = options.encodingGiven ? options.encoding : document.encoding;
  const std::string& file = options.file.empty() ? document.file : options.file;
  if (file == "-") {
    output.out << EncodeDocument(written, encoding);
  } else {
    WriteDocument(file, written, encoding);
  }
  return true;
}

int Run(const ConvertOptions& options) {
  if (!options.file.empty() && options.files->size() > 1) {
    throw CLI::ValidationError("--output", "takes one document");
  }
  return ForEachDocument(*options.files, {[&](const Document& document, Output& output) {
    if (!options.file.empty() && !document.isOnly) {
      throw Error(0, {}, u"--output takes one document"_text);
    }
    return Convert(document, options, output);
  }});
}

}  // namespace

void AddConvertCommand(CLI::App& app, int& exitCode) {
  CLI::App* const command = app.add_subcommand(
      "convert", "Write documents anew as the library writes them, in place or to a file");
  const auto options = std::make_shared<ConvertOptions>();
  options->files = AddDocuments(*command);
  command
      ->add_option("-o,--output", options->file,
                   "The file to write instead of the one that is read; - is standard output")
      ->check(FileName());
  CLI::Option* const encoding =
      AddEncoding(*command, options->encoding,
                  "utf-8, or utf-16 with byte-order mark, instead of the document's own");
  command->add_flag("--lossy", options->lossy,
                    "Convert also what is not read, or not written, in full");
  command->footer(
      "Exit code: 0 when all documents are converted, 1 when one is not, which then stays as it "
      "is,\n"
      "2 for wrong use.\n\n"
      "Examples:\n"
      "  praxen convert --encoding utf-8 exports/\n"
      "  praxen convert -o normal.xml program.xml");
  command->callback([&exitCode, options, encoding] {
    options->encodingGiven = encoding->count() > 0;
    exitCode = Run(*options);
  });
}

}  // namespace praxen::detail
