// Zorvane: starts the game window.
#include <QApplication>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    return 0;
}
