// The least that the toolkit can show: an empty window. What the program's start is compared with.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget fenêtre;
    if (argc == 3)
        fenêtre.resize(QByteArray(argv[1]).toInt(), QByteArray(argv[2]).toInt());
    fenêtre.show();
    return QApplication::exec();
}
