#include "cli/ProgressLine.h"

#include <QTextStream>

namespace sv {
namespace {
constexpr qint64 kRedrawMs = 100;
constexpr int kMaxWidth = 79;
}  // namespace

ProgressLine::ProgressLine(QTextStream& err, bool enabled) : mErr(err), mEnabled(enabled) {}

ProgressLine::~ProgressLine() {
  Clear();
}

void ProgressLine::Show(const QString& text) {
  if (!mEnabled) return;
  if (mShown && mSinceDrawn.isValid() && mSinceDrawn.elapsed() < kRedrawMs) return;
  const QString line = text.left(kMaxWidth);
  mErr << '\r' << line << QString(qMax(0, mWidth - line.size()), QLatin1Char(' ')) << '\r';
  mErr.flush();
  mWidth = static_cast<int>(line.size());
  mShown = true;
  mSinceDrawn.start();
}

void ProgressLine::Clear() {
  if (!mShown) return;
  mErr << '\r' << QString(mWidth, QLatin1Char(' ')) << '\r';
  mErr.flush();
  mShown = false;
  mWidth = 0;
}

}  // namespace sv
