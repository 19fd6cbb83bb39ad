// Reads an ADIF file with the strict parser in the folder named and prints its records as JSON.
// Ends with status 1 and the parser's reason where it refuses the file.
'use strict';

const [parserFolder, file] = process.argv.slice(2);
const { ADIF } = require(parserFolder);

try {
    const text = require('fs').readFileSync(file, 'latin1');
    console.log(JSON.stringify(ADIF.parse(text).toObject().qsos));
} catch (refusal) {
    console.log(JSON.stringify(String(refusal)));
    process.exitCode = 1;
}
