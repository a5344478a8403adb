#pragma once

#include <QString>

namespace sv {

// The spelling checker as the settings configure it: its options and dictionaries. The engine
// itself (checking, suggestions, the ignore list) is the implementation's.
class ISpellingEngine {
 public:
  virtual ~ISpellingEngine() = default;
  virtual void setOptionBtnCaption(const QString& caption) = 0;
  virtual void setSuggest(bool value) = 0;
  virtual void setIgnoreInUpperCase(bool value) = 0;
  virtual void setIgnoreWithNumbers(bool value) = 0;
  virtual void setIgnoreInMixedCase(bool value) = 0;
  virtual void setMainDictFile(const QString& path) = 0;
  virtual void setCustomDictFile(const QString& path) = 0;
};

}  // namespace sv
