#include <layout/xml.hpp>

#include <iostream>

int main(int count, char* arguments[]) {
    using namespace kivo::erp::v12;
    const layout::invoice_document document = layout::read_file(arguments[count - 1]);
    std::cout << layout::write_xml(document.invoice, document.outside);
    return document.result.texts_read == document.result.texts ? 0 : 1;
}
