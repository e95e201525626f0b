#include <TXError.h>

#include <iostream>

int main()
{
    TXError error;
    error.setDescription(TXStringI18n("No paper in the printer"));
    std::cout << error.getLocalizedDescription().toStdString() << std::endl;
    return 0;
}
