// Reading the Doxygen XML of the Qt 6 headers (QtCore, QtGui, QtWidgets): the index, the
// roots of the code tree, the largest class and the global scope. Bytes per second count the
// XML read; the memory counters are heap bytes per byte of XML.
#include <benchmark/benchmark.h>
#include <malloc.h>

#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <atomic>
#include <cstdlib>
#include <new>
#include <pugixml.hpp>

#include "project/doxygen/DoxygenCompound.h"
#include "project/doxygen/DoxygenIndex.h"

namespace {

// Heap accounting: operator new and pugixml's allocations (QString's are not counted).
std::atomic<std::int64_t> gLive{0};
std::atomic<std::int64_t> gPeak{0};

void* CountedAlloc(std::size_t size) {
  void* p = std::malloc(size == 0 ? 1 : size);
  if (!p) return nullptr;
  const std::int64_t live = gLive += static_cast<std::int64_t>(malloc_usable_size(p));
  std::int64_t peak = gPeak.load();
  while (live > peak && !gPeak.compare_exchange_weak(peak, live)) {
  }
  return p;
}

void CountedFree(void* p) {
  if (!p) return;
  gLive -= static_cast<std::int64_t>(malloc_usable_size(p));
  std::free(p);
}

const bool gPugiCounted = [] {
  pugi::set_memory_management_functions(CountedAlloc, CountedFree);
  return true;
}();

QString XmlFolder() {
  const QString out = QStringLiteral(SV_BINARY_DIR "/bench/qt-doxygen");
  if (!QFileInfo::exists(out + QStringLiteral("/xml/index.xml"))) {
    const std::string command = SV_SOURCE_DIR "/scripts/make-bench-xml.sh " + out.toStdString();
    if (std::system(command.c_str()) != 0) std::abort();
  }
  return out + QStringLiteral("/xml");
}

const QString& Folder() {
  static const QString folder = XmlFolder();
  return folder;
}

// The class or struct with the largest file.
int LargestClass(const sv::DoxygenIndex& index) {
  int best = -1;
  qint64 bestSize = -1;
  for (int id = 1; id < index.Count(); ++id) {
    const sv::DoxygenIndexCompound& c = index.Compound(id);
    if (c.kind != sv::DoxygenCompoundKind::Class && c.kind != sv::DoxygenCompoundKind::Struct)
      continue;
    if (c.refid.empty()) continue;
    const qint64 size = QFileInfo(index.FileOf(c.refid)).size();
    if (size <= bestSize) continue;
    best = id;
    bestSize = size;
  }
  return best;
}

void ReportMemory(benchmark::State& state, std::int64_t before, std::int64_t retained,
                  qint64 xmlBytes) {
  state.counters["peak_heap_per_xml_byte"] = static_cast<double>(gPeak - before) / xmlBytes;
  state.counters["kept_heap_per_xml_byte"] = static_cast<double>(retained) / xmlBytes;
  state.counters["xml_MB"] = static_cast<double>(xmlBytes) / 1e6;
}

// What pugixml alone takes for index.xml, the floor for reading it.
void BM_PugixmlOnly(benchmark::State& state) {
  QFile file(Folder() + QStringLiteral("/index.xml"));
  if (!file.open(QIODevice::ReadOnly)) std::abort();
  const QByteArray bytes = file.readAll();
  for (auto _ : state) {
    QByteArray copy(bytes.constData(), bytes.size());
    pugi::xml_document document;
    benchmark::DoNotOptimize(document.load_buffer_inplace(
        copy.data(), copy.size(), pugi::parse_minimal | pugi::parse_escapes, pugi::encoding_utf8));
  }
  state.SetBytesProcessed(state.iterations() * bytes.size());
}
BENCHMARK(BM_PugixmlOnly)->Unit(benchmark::kMillisecond);

void BM_ReadIndex(benchmark::State& state) {
  Folder();
  qint64 bytes = 0;
  std::int64_t before = 0;
  std::int64_t retained = 0;
  for (auto _ : state) {
    before = gPeak = gLive.load();
    sv::DoxygenIndex index(Folder(), QStringLiteral("Qt"));
    retained = gLive - before;
    bytes = index.IndexSize();
    benchmark::DoNotOptimize(index.Count());
    state.counters["compounds"] = index.Count();
  }
  state.SetBytesProcessed(state.iterations() * bytes);
  ReportMemory(state, before, retained, bytes);
}
BENCHMARK(BM_ReadIndex)->Unit(benchmark::kMillisecond);

// What the tree needs to show its first level: the index, then each root's name and key.
void BM_ShowRoots(benchmark::State& state) {
  qint64 bytes = 0;
  for (auto _ : state) {
    sv::DoxygenIndex index(Folder(), QStringLiteral("Qt"));
    bytes = index.IndexSize();
    int shown = 0;
    for (const std::int32_t root : index.Children(sv::DoxygenIndex::kRoot)) {
      const sv::DoxygenIndexCompound& c = index.Compound(root);
      benchmark::DoNotOptimize(
          QString::fromUtf8(c.localName.data(), static_cast<qsizetype>(c.localName.size())));
      benchmark::DoNotOptimize(index.QualifiedName(root));
      ++shown;
    }
    state.counters["roots"] = shown;
  }
  state.SetBytesProcessed(state.iterations() * bytes);
}
BENCHMARK(BM_ShowRoots)->Unit(benchmark::kMillisecond);

void BM_LoadLargestClass(benchmark::State& state) {
  const sv::DoxygenIndex index(Folder(), QStringLiteral("Qt"));
  const int largest = LargestClass(index);
  qint64 bytes = 0;
  std::int64_t before = 0;
  std::int64_t retained = 0;
  for (auto _ : state) {
    const qint64 read = index.BytesRead();
    before = gPeak = gLive.load();
    const sv::DoxygenCompound details(index, largest);
    retained = gLive - before;
    bytes = index.BytesRead() - read;
    state.counters["members"] = static_cast<double>(details.Members().size());
  }
  state.SetBytesProcessed(state.iterations() * bytes);
  state.SetLabel(index.QualifiedName(largest).toStdString());
  ReportMemory(state, before, retained, bytes);
}
BENCHMARK(BM_LoadLargestClass)->Unit(benchmark::kMillisecond);

// The global scope borrows from every file that declares global members.
void BM_LoadGlobalScope(benchmark::State& state) {
  const sv::DoxygenIndex index(Folder(), QStringLiteral("Qt"));
  qint64 bytes = 0;
  for (auto _ : state) {
    const qint64 read = index.BytesRead();
    const sv::DoxygenCompound details(index, sv::DoxygenIndex::kRoot);
    bytes = index.BytesRead() - read;
    state.counters["members"] = static_cast<double>(details.Members().size());
  }
  state.SetBytesProcessed(state.iterations() * bytes);
}
BENCHMARK(BM_LoadGlobalScope)->Unit(benchmark::kMillisecond);

}  // namespace

void* operator new(std::size_t size) {
  if (void* p = CountedAlloc(size)) return p;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) {
  return operator new(size);
}
void operator delete(void* p) noexcept {
  CountedFree(p);
}
void operator delete[](void* p) noexcept {
  CountedFree(p);
}
void operator delete(void* p, std::size_t) noexcept {
  CountedFree(p);
}
void operator delete[](void* p, std::size_t) noexcept {
  CountedFree(p);
}
