#include "utils/funcoes/Espera.h"

#include <chrono>
#include <QElapsedTimer>
#include <thread>

#include "platform/system/UserInterface.h"

void Wait(int milliseconds) {
    using namespace std::chrono_literals;
    QElapsedTimer ticks;
    ticks.start();
    while (ticks.elapsed() < milliseconds) {
        UserInterface().ProcessMessages();
        std::this_thread::sleep_for(1ms);
    }
}
