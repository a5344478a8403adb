#include "foundation/NumericValue.h"

namespace sv {

namespace {

qsizetype SkipDigits(const QString& text, qsizetype at) {
  while (at < text.size() && text[at].isDigit() && text[at].unicode() < 128) ++at;
  return at;
}

qsizetype SkipSign(const QString& text, qsizetype at) {
  return at < text.size() && (text[at] == u'+' || text[at] == u'-') ? at + 1 : at;
}

// The end of the exponent that starts at `at`, or `at` itself when no whole exponent is there.
qsizetype ExponentEnd(const QString& text, qsizetype at) {
  if (at >= text.size() || (text[at] != u'e' && text[at] != u'E')) return at;
  const qsizetype digits = SkipSign(text, at + 1);
  const qsizetype end = SkipDigits(text, digits);
  return end > digits ? end : at;
}

}  // namespace

double NumericValue(const QString& text) {
  qsizetype start = 0;
  while (start < text.size() && text[start].isSpace()) ++start;
  const qsizetype integral = SkipSign(text, start);
  qsizetype end = SkipDigits(text, integral);
  bool hasDigits = end > integral;
  if (end < text.size() && text[end] == u'.') {
    const qsizetype fractionEnd = SkipDigits(text, end + 1);
    hasDigits = hasDigits || fractionEnd > end + 1;
    end = fractionEnd;
  }
  if (!hasDigits) return 0;
  end = ExponentEnd(text, end);
  return QStringView(text).mid(start, end - start).toDouble();
}

}  // namespace sv
