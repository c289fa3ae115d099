// An empty Qt window of the splash's size: what the toolkit itself costs at the start.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setFixedSize(480, 300);
    window.show();
    return QApplication::exec();
}
