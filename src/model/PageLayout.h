#pragma once

#include <QString>

namespace sv {

// A page layout of a template.
class PageLayout {
 public:
  virtual ~PageLayout() = default;

  virtual QString Name() const = 0;
  virtual bool Enabled() const = 0;
  virtual void setEnabled(bool value) = 0;
  // Comma list of namespace monikers.
  virtual QString NameSpaces() const = 0;
  virtual QString Caption() const = 0;
  // The output file name of the layout's pages, with "%%itemqualifiedname%%" standing for the
  // item ("%%itemqualifiedname%%_members.html"); empty for a layout that writes the item's
  // main page.
  virtual QString FileNameTemplate() const { return {}; }
};

}  // namespace sv
