#pragma once

#include <QString>
#include <QStringList>

namespace sv {

// One trapped call on this thread. Frames nest; the innermost collects the dumps of the named
// locals that an exception unwinds through, for its report.
class TrapFrame {
 public:
  TrapFrame() noexcept;
  ~TrapFrame();
  TrapFrame(const TrapFrame&) = delete;
  TrapFrame& operator=(const TrapFrame&) = delete;

  // The innermost frame of this thread, or null outside any trap.
  static TrapFrame* Current() noexcept;

  // Locals unwind innermost and last declared first; each is put in front so that the dump
  // keeps declaration order.
  void AddLocal(const QString& dump);
  // The joined local dumps, or "{None}".
  QString Locals() const;

 private:
  TrapFrame* mOuter;
  QStringList mLocals;
};

}  // namespace sv
