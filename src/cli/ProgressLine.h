#pragma once

#include <QElapsedTimer>
#include <QString>

class QTextStream;

namespace sv {

// One line on the error stream that tells how far a long step has come. It is redrawn in place
// at most ten times a second and wiped when the step ends, so it never mixes with the
// results; when off (the stream is not a terminal) it writes nothing.
class ProgressLine {
 public:
  ProgressLine(QTextStream& err, bool enabled);
  ~ProgressLine();

  ProgressLine(const ProgressLine&) = delete;
  ProgressLine& operator=(const ProgressLine&) = delete;

  void Show(const QString& text);
  void Clear();

 private:
  QTextStream& mErr;
  bool mEnabled;
  bool mShown = false;
  int mWidth = 0;
  QElapsedTimer mSinceDrawn;
};

}  // namespace sv
