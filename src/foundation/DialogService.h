#pragma once

class QObject;

namespace sv {

// Shows a dialog component modally. The form keeps its state after it closes: the caller reads
// Success or Cancelled from it.
class IDialogService {
 public:
  virtual ~IDialogService();
  virtual void ShowModal(QObject* form, QObject* owner) = 0;
};

}  // namespace sv
