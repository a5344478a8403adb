#include "foundation/TrapLocal.h"

#include "foundation/DumpValue.h"
#include "foundation/TrapFrame.h"

namespace sv {

TrapLocal::~TrapLocal() {
  if (std::uncaught_exceptions() <= mUncaught) return;
  TrapFrame* frame = TrapFrame::Current();
  if (!frame) return;
  // Unwinding already: a failure to dump must not escape a destructor.
  try {
    frame->AddLocal(DumpValue(QString::fromUtf8(mName), mRead(mValue)));
  } catch (const std::exception&) {
    return;
  }
}

}  // namespace sv
