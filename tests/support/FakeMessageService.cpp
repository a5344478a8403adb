#include "FakeMessageService.h"

#include "foundation/MessageBox.h"

#include <gtest/gtest.h>

namespace sv::test {

int FakeMessageService::ShowMessage(const QString& text, int flags, const QString& title) {
  mBoxes.push_back({text, flags, title});
  if (!mScript.empty()) {
    const int answer = mScript.front();
    mScript.pop_front();
    return answer;
  }
  if (mStrict) ADD_FAILURE() << "unexpected message box: " << text.toStdString();
  return Mb::Buttons(flags).front();
}

void FakeMessageService::Script(std::initializer_list<int> answers) {
  mScript.insert(mScript.end(), answers.begin(), answers.end());
}

QString FakeMessageService::Last() const {
  if (mBoxes.empty()) return {};
  const Box& box = mBoxes.back();
  return QStringLiteral("%1|%2|%3").arg(box.title).arg(box.flags).arg(box.text);
}

void FakeMessageService::Clear() {
  mBoxes.clear();
  mScript.clear();
}

}  // namespace sv::test
