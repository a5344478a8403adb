#include "foundation/TrapFrame.h"

namespace sv {

namespace {
thread_local TrapFrame* gInnermost = nullptr;
}  // namespace

TrapFrame::TrapFrame() noexcept : mOuter(gInnermost) {
  gInnermost = this;
}

TrapFrame::~TrapFrame() {
  gInnermost = mOuter;
}

TrapFrame* TrapFrame::Current() noexcept {
  return gInnermost;
}

void TrapFrame::AddLocal(const QString& dump) {
  mLocals.prepend(dump);
}

QString TrapFrame::Locals() const {
  return mLocals.isEmpty() ? QStringLiteral("{None}") : mLocals.join(QString());
}

}  // namespace sv
