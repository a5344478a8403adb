#pragma once

#include <QByteArray>
#include <QString>
#include <initializer_list>
#include <map>
#include <memory>
#include <pugixml.hpp>

namespace sv {

// Keeps the attributes and elements of a file that this version does not know, so that a file
// written by a newer version loses nothing when this one saves it. Each place in the file has a
// path ("Settings", "DocTypes/DocType[html]"); what was not understood at a place is held as
// one fragment and written back at the same place, behind the known content.
class ForeignXml {
 public:
  // Collects while a file is read.
  class Collector {
   public:
    explicit Collector(std::map<QString, QByteArray>& store) : mStore(store) {}
    ~Collector();

    Collector(const Collector&) = delete;
    Collector& operator=(const Collector&) = delete;

    // Keeps the attributes of node not named in known and its child elements whose names are
    // not in knownChildren.
    void Scan(const pugi::xml_node& node, const QString& path,
              std::initializer_list<const char*> known,
              std::initializer_list<const char*> knownChildren);
    // Keeps one element that the reader did not understand.
    void KeepElement(const QString& path, const pugi::xml_node& element);

   private:
    pugi::xml_node carrier(const QString& path);

    std::map<QString, QByteArray>& mStore;
    std::map<QString, std::unique_ptr<pugi::xml_document>> mCarriers;
  };

  // Writes back what was kept at a path into node.
  static void Restore(const std::map<QString, QByteArray>& store, const QString& path,
                      pugi::xml_node node);
};

}  // namespace sv
