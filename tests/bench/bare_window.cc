#include <QApplication>
#include <QGridLayout>
#include <QToolButton>

// What the main window is measured against: as many buttons in a bare window of the toolkit.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QWidget window;
    auto* grid = new QGridLayout(&window);
    for (int i = 0; i < 48; ++i) {
        auto* button = new QToolButton;
        button->setText(QStringLiteral("Button %1").arg(i));
        grid->addWidget(button, i / 8, i % 8);
    }
    window.setWindowTitle(QStringLiteral("bare"));
    window.show();
    return QApplication::exec();
}
