#pragma once

#include <QString>
#include <QVariantList>

#include "exact/account_module.h"
#include "shell/frame/view_controller.h"

namespace tavi {

/// The exact value of a task, offered over the page with its working: the value, its decimal to as many
/// digits as wanted, and why the working comes to something else.
class ExactSheetController : public tavi::ViewController {
  Q_OBJECT
  QML_ELEMENT
  QML_UNCREATABLE("Made by the solution page")
  Q_PROPERTY(QString value READ value CONSTANT)
  Q_PROPERTY(QString decimal READ decimal NOTIFY changed)
  Q_PROPERTY(bool hasMoreDigits READ hasMoreDigits NOTIFY changed)
  Q_PROPERTY(bool hasFewerDigits READ hasFewerDigits NOTIFY changed)
  Q_PROPERTY(QVariantList sentences READ sentences CONSTANT)

 public:
  /// `account` is the answer to `question`.
  ExactSheetController(exact::AccountQuestion question, exact::Account account);

  QString title() const override;

  /// The task and, where that can be shown in one line, its value; LaTeX as it is to be read.
  QString value() const;
  /// The decimal behind its relation; empty where there is none or the value is one itself.
  QString decimal() const;
  bool hasMoreDigits() const;
  bool hasFewerDigits() const;

  /// What there is to say, each sentence as {"spoken": text, "pieces": [[{"word"} or {"formula"}, …], …]},
  /// with pieces between which a line may be broken.
  QVariantList sentences() const;

  Q_INVOKABLE void showMoreDigits();
  Q_INVOKABLE void showFewerDigits();

  /// Put the value on the clipboard and go.
  Q_INVOKABLE void copyLatex();
  Q_INVOKABLE void copyText();

 signals:
  void changed();

 private:
  void setDigits(int digits);
  void copy(const QString& text);

  exact::AccountQuestion question_;
  exact::Account account_;
};

}  // namespace tavi
