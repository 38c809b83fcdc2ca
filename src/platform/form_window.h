#pragma once

#include <QWidget>

#include "platform/form.h"

namespace ratanka {

// The window of one loading of a form: paints the form's background and passes on what the window
// system says.
class FormWindow : public QWidget {
 public:
  FormWindow(Form& form, const FormDesign& design);

  // From now on the form hears nothing of this window.
  void leaveForm() { form_ = nullptr; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  Form* form_;
  const FormDesign& design_;
};

}  // namespace ratanka
