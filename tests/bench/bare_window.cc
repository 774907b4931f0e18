#include <QApplication>
#include <QGridLayout>
#include <QMainWindow>
#include <QMenuBar>
#include <QToolButton>

// What the main window is measured against: a bare main window of the toolkit with a menu, with as
// many buttons and as large.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QMainWindow window;
    QMenu& menu = *window.menuBar()->addMenu(QStringLiteral("&File"));
    menu.addAction(QStringLiteral("E&xit"), &application, &QApplication::quit);
    auto* content = new QWidget;
    auto* grid = new QGridLayout(content);
    for (int i = 0; i < 50; ++i) {
        auto* button = new QToolButton;
        button->setText(QStringLiteral("Button %1").arg(i));
        grid->addWidget(button, i / 5, i % 5);
    }
    window.setCentralWidget(content);
    window.setWindowTitle(QStringLiteral("bare"));
    window.resize(950, 541);
    window.show();
    return QApplication::exec();
}
