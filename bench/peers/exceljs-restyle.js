// The same job in exceljs: load a workbook, restyle one column, save.
//
//   node exceljs-restyle.js IN OUT       exceljs is found through NODE_PATH
'use strict';

const ExcelJS = require('exceljs');

async function main([input, output]) {
  const book = new ExcelJS.Workbook();
  await book.xlsx.readFile(input);
  const sheet = book.getWorksheet('Data');
  sheet.eachRow((row) => {
    const cell = row.getCell(5);
    cell.numFmt = '[$$-409]#,##0_);([$$-409]#,##0)';
    cell.font = {name: 'Arial', size: 10, bold: true};
  });
  await book.xlsx.writeFile(output);
}

main(process.argv.slice(2)).catch((error) => {
  console.error(error.message);
  process.exit(1);
});
