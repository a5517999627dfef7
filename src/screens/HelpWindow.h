#pragma once
#include <QWidget>

class QListWidget;
class QTextBrowser;

namespace zorvane::screens {

// The help window: the game's help file zorvane.hlp (Markdown) with a table of contents
// built from its headings beside it. A missing or unreadable file is said in one line.
class HelpWindow : public QWidget {
    Q_OBJECT
  public:
    explicit HelpWindow(QString path, QWidget* parent = nullptr);

    // Reads the file again, shows the window at its contents and brings it to the front.
    void showContents();
    // Scrolls to entry `index` of the table of contents.
    void showTopic(int index);

    QListWidget* contents() const { return lstContents_; }
    QTextBrowser* text() const { return txtHelp_; }

  private:
    void load();

    QString path_;
    QListWidget* lstContents_;
    QTextBrowser* txtHelp_;
};

} // namespace zorvane::screens
