// Prints what the npm package "plist" reads in property lists, one line for each file, in the form
// that OtherReadersTest.cpp describes.   node npm_reader.js PACKAGES FILE...
const fs = require('fs');
const path = require('path');
const plist = require(path.join(process.argv[2], 'node_modules', 'plist'));

const text = (value) => 's' + Buffer.from(value, 'utf8').toString('hex');

function real(value) {
  const bytes = Buffer.alloc(8);
  bytes.writeDoubleLE(value);
  return 'r' + bytes.toString('hex');
}

function form(value) {
  if (typeof value === 'boolean') return value ? 'b1' : 'b0';
  if (typeof value === 'string') return text(value);
  if (typeof value === 'number') return real(value);
  if (value instanceof Date) return 'd' + (value.getTime() / 1000 - 978307200);
  if (value instanceof Uint8Array) return 'x' + Buffer.from(value).toString('hex');
  if (Array.isArray(value)) return ['[', ...value.map(form), ']'].join(' ');
  const entries = Object.keys(value).map((key) => text(key) + ' ' + form(value[key]));
  return ['{', ...entries.sort(), '}'].join(' ');
}

for (const file of process.argv.slice(3)) {
  try {
    console.log(form(plist.parse(fs.readFileSync(file, 'utf8'))));
  } catch {
    console.log('refused');
  }
}
