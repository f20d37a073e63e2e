#include <layout/xml.hpp>

#include <iostream>

int main(int count, char* arguments[]) {
    using namespace kivo::erp::v12;
    const layout::invoice_document document = layout::read_file(arguments[count - 1]);
    std::cout << layout::write_xml(document.invoice, document.outside);
    return document.report.texts_in_fields == document.report.texts ? 0 : 1;
}
