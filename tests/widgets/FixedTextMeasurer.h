#pragma once

#include <memory>

#include "ui/TextMeasure.h"
#include "ui/VisualTheme.h"

namespace sv::test {

// Measures every character as 10 pixels and every line as 20, while it lives, so that fitted
// texts and sizes can be worked out by hand.
class FixedTextMeasurer : public ITextMeasurer {
 public:
  int TextWidth(const QString& text, const QString&) const override {
    return 10 * static_cast<int>(text.size());
  }
  int LineHeight(const QString&) const override { return 20; }
};

class ScopedFixedTextMeasurer {
 public:
  ScopedFixedTextMeasurer() : mPrevious(SetTextMeasurer(std::make_shared<FixedTextMeasurer>())) {}
  ~ScopedFixedTextMeasurer() { SetTextMeasurer(mPrevious); }

 private:
  std::shared_ptr<ITextMeasurer> mPrevious;
};

// An active theme whose explorer bar pane has a known fill and text colour.
class FakeTheme : public IVisualTheme {
 public:
  bool IsActive() const override { return true; }
  std::optional<quint32> Color(const QString& themeClass, int part, int state,
                               int property) const override {
    if (themeClass != "EXPLORERBAR" || part != 5 || state != 1) return std::nullopt;
    if (property == 3802) return 0xD6DFF7;
    if (property == 3803) return 0x215DC6;
    return std::nullopt;
  }
};

class ScopedFakeTheme {
 public:
  ScopedFakeTheme() : mPrevious(SetVisualTheme(std::make_shared<FakeTheme>())) {}
  ~ScopedFakeTheme() { SetVisualTheme(mPrevious); }

 private:
  std::shared_ptr<IVisualTheme> mPrevious;
};

}  // namespace sv::test
