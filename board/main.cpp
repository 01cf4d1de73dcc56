#include "application/startup.h"

int main(int argc, char **argv)
{
    return board::runBoard(argc, argv);
}
