#pragma once

#include "foundation/MessageService.h"

#include <QString>
#include <deque>
#include <initializer_list>
#include <vector>

namespace sv::test {

// Records every box and answers from a script. With the script used up a box answers its first
// button, unless the fake is strict: then an unscripted box fails the test.
class FakeMessageService : public IMessageService {
 public:
  struct Box {
    QString text;
    int flags = 0;
    QString title;
  };

  int ShowMessage(const QString& text, int flags, const QString& title) override;

  void Script(std::initializer_list<int> answers);
  void SetStrict(bool strict) { mStrict = strict; }

  const std::vector<Box>& Boxes() const { return mBoxes; }
  int Count() const { return static_cast<int>(mBoxes.size()); }
  // The last box as "title|flags|text", or empty when none was shown.
  QString Last() const;
  void Clear();

 private:
  std::deque<int> mScript;
  std::vector<Box> mBoxes;
  bool mStrict = false;
};

}  // namespace sv::test
