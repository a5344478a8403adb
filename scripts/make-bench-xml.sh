#!/usr/bin/env bash
# Makes the Doxygen XML of the installed Qt 6 headers that the code model benchmarks read.
# Usage: make-bench-xml.sh <output folder>. Does nothing when the XML is already there.
set -euo pipefail

out="${1:?usage: make-bench-xml.sh <output folder>}"
qt="${SV_QT_INCLUDE:-/usr/include/x86_64-linux-gnu/qt6}"

if [ -f "$out/xml/index.xml" ]; then
  exit 0
fi
mkdir -p "$out"
rm -rf "$out/xml"

cat > "$out/Doxyfile" <<CONFIG
PROJECT_NAME           = Qt
OUTPUT_DIRECTORY       = $out
INPUT                  = $qt/QtCore $qt/QtGui $qt/QtWidgets
FILE_PATTERNS          = *.h
RECURSIVE              = NO
EXTRACT_ALL            = YES
EXTRACT_PRIVATE        = YES
EXTRACT_STATIC         = YES
EXTRACT_ANON_NSPACES   = YES
CASE_SENSE_NAMES       = YES
ENABLE_PREPROCESSING   = YES
MACRO_EXPANSION        = YES
EXPAND_ONLY_PREDEF     = YES
PREDEFINED             = Q_CORE_EXPORT= Q_GUI_EXPORT= Q_WIDGETS_EXPORT= \\
                         Q_DECL_CONSTEXPR=constexpr Q_DECL_NOTHROW=noexcept \\
                         Q_DECL_DEPRECATED= QT_DEPRECATED_SINCE(a,b)=1
GENERATE_HTML          = NO
GENERATE_LATEX         = NO
GENERATE_XML           = YES
XML_PROGRAMLISTING     = NO
SOURCE_BROWSER         = NO
HAVE_DOT               = NO
QUIET                  = YES
WARNINGS               = NO
WARN_IF_UNDOCUMENTED   = NO
WARN_IF_DOC_ERROR      = NO
CONFIG

echo "Generating Doxygen XML of the Qt headers into $out/xml (takes a few minutes)..."
doxygen "$out/Doxyfile" > "$out/doxygen.log" 2>&1
test -f "$out/xml/index.xml"
