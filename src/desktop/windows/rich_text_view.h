// Shows a rich text file, at the scale of the window.
#pragma once

#include <QTextBrowser>

namespace quendal {

class RichTextView final : public QTextBrowser {
    Q_OBJECT
  public:
    explicit RichTextView(QWidget* parent);
    // Shows the file at `scale`; one that can't be shown gives a sentence in its place. The same
    // file at the same scale stays as it is.
    void showFile(const QString& path, double scale);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitLines();

    QString path_;
    double scale_ = 0;
};

} // namespace quendal
