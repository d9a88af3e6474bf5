// The recorder of what a reading takes of a document, which tells what it leaves out.
#ifndef PRAXEN_XML_LOSS_RECORDER_H_
#define PRAXEN_XML_LOSS_RECORDER_H_

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "praxen/core/losses.h"
#include "praxen/xml/xml_document.h"

namespace praxen::detail {

/// Is told by the walks that read a document what they take; whatever none of them takes is lost.
/// A walk that forgets to tell so makes a loss too many, never one too few.
///
/// It records from its construction to its end, and is then found by `XmlNode::recorder`.
class LossRecorder {
 public:
  explicit LossRecorder(XmlDocument& document);
  LossRecorder(const LossRecorder&) = delete;
  LossRecorder& operator=(const LossRecorder&) = delete;
  ~LossRecorder() { document_.Record(nullptr); }

  /// How the children of an element are read.
  enum class Walk : uint8_t {
    /// In their order; the walk ends at the first that is not expected.
    Ordered,
    /// All that are known, wherever they stand.
    Every
  };

  /// The element is read; its attributes and children as far as they are taken themselves.
  void Take(const XmlNode& element, Walk walk = Walk::Ordered);
  void Take(const XmlAttribute& attribute) { attributes_.push_back(&attribute); }
  /// The element is read as one that holds a text, which is its first child's.
  void TakeText(const XmlNode& element);
  /// What the element of that name holds is read as markup.
  void TakeMarkup(const XmlNode& content, std::u16string_view element);
  /// The element has a name that is read in another place.
  void Misplace(const XmlNode& element) { MarkOf(element) = Mark::Misplaced; }
  bool isTaken(const XmlNode& node) const { return IsTaken(marks_[node.number()]); }

  /// The attribute is read as a value that means something else.
  void ReadAs(const XmlNode& element, const XmlAttribute& attribute, std::u16string_view value);
  /// The element is read as if it had another name.
  void ReadAs(const XmlNode& element, std::u16string_view name);
  /// Records what a sentence tells of an element, or of its attribute.
  void Note(LossKind kind, const XmlNode& element, std::u16string_view sentence,
            const XmlAttribute* attribute = nullptr);

  /// What was lost, in the order of the places.
  Losses Find();

 private:
  enum class Mark : uint8_t { Passed, Misplaced, Taken, TakenByEvery, TakenWhole };
  struct Found {
    size_t offset;
    Loss loss;
  };

  static bool IsTaken(Mark mark) { return mark >= Mark::Taken; }
  Mark& MarkOf(const XmlNode& node) { return marks_[node.number()]; }
  /// Records that blanks, or a comment, became what an element holds.
  void NoteContent(const XmlNode& content, std::u16string_view element);
  void FindPassedAttributes(const XmlNode& element);
  void FindPassedChildren(const XmlNode& element);
  std::u16string Cause(const XmlNode& element, const XmlNode& passed, const XmlNode& before) const;
  void Add(LossKind kind, const XmlNode& node, const XmlAttribute* attribute,
           std::u16string_view name, std::u16string_view sentence);

  XmlDocument& document_;
  /// Of each node by its number.
  std::vector<Mark> marks_;
  std::vector<const XmlAttribute*> attributes_;
  std::vector<Found> found_;
};

}  // namespace praxen::detail

#endif  // PRAXEN_XML_LOSS_RECORDER_H_
